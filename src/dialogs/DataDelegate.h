#pragma once

#include <ozm_widgets/MsDataLook.h>

#include <QHash>
#include <QSet>
#include <QStyledItemDelegate>

#include <memory>

namespace ozm {

class SeenEntries;

/**
 * Shows in the list of a file dialog what each entry is: an icon for data, and in the column of types the
 * format, or that a folder of a vendor's name holds no data.
 *
 * Entries are looked at beside the event loop when they come on screen; until then they look as in any list.
 */
class DataDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    DataDelegate(const std::shared_ptr<SeenEntries> &seen, QObject *parent);

    /// Forgets what was seen, as the disk may have changed.
    void clear();

    /// The format of an entry that was looked at: null when it was not, empty when it holds no data.
    [[nodiscard]] QString formatOf(const QString &path) const;

Q_SIGNALS:
    /// Emitted when a view should be painted again.
    void looked();

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    QHash<QString, QString> m_formats;
    mutable QSet<QString> m_asked;
    mutable msreader::MsDataLook m_look;
};

} // namespace ozm
