#pragma once

#include "templates/files/WebReaderInterface.h"

#include <QObject>

namespace ozm {

/**
 * Reads pages with Qt's web engine.
 *
 * The page itself is never loaded: an empty one is, with the scripts of pages switched off and every request
 * refused, and in it a line of this reader's own parses the text into a document that is not shown. To such
 * a document nothing is fetched and no script is run.
 */
class EngineWebReader : public QObject, public WebReaderInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID OZM_WEB_READER_IID)
    Q_INTERFACES(ozm::WebReaderInterface)

public:
    [[nodiscard]] Result<QString> bodyOf(const QString &page, std::chrono::milliseconds deadline) override;
};

} // namespace ozm
