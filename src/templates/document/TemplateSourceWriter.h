#pragma once

#include <QList>
#include <QString>

class QTextDocument;

namespace ozm::editor {

/// Where a chip is, in the source and in the document that it was written from.
struct ChipPlace
{
    qsizetype start = 0;
    qsizetype end = 0;
    int position = 0;
};

struct WrittenSource
{
    QString text;
    QList<ChipPlace> chips; ///< In order of both.
};

/**
 * Writes a document as the source of a template: short HTML that says only what differs from the defaults,
 * with codes, scripts and kept markup to the letter. What is written, read, and written again is the same.
 */
[[nodiscard]] WrittenSource writeSource(const QTextDocument &document);

} // namespace ozm::editor
