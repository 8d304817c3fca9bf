#pragma once

#include <ozm_audit_widgets/TrailModel.h>

class QPagedPaintDevice;

namespace ozm::audit {

/**
 * The entries that pass the filter of a model, on paper or as a table for spreadsheets.
 *
 * The head says which trail, the filter in words, the range, by whom and when, and "n of m entries"; each page
 * says the checkpoint of the trail and "page x of y". Values that were changed later are marked, and signatures
 * show meaning, name and time.
 *
 *     const ozm::audit::TrailOutput output(model, {u"jdoe"_s, u"Jane Doe"_s});
 *     error = output.writePdf(path);
 *
 * GUI thread. Errors: NotAllowed while the model still searches, or for more than mostEntries() on paper.
 */
class OZM_AUDIT_WIDGETS_EXPORT TrailOutput
{
public:
    TrailOutput(const TrailModel &model, const Person &user);

    /// More entries than these are not brought onto paper.
    [[nodiscard]] static qint64 mostEntries();
    /// Why this cannot be printed; no error when it can.
    [[nodiscard]] Error check() const;
    /// The whole as one page of HTML.
    [[nodiscard]] QString toHtml() const;
    /// At the foot of each page.
    [[nodiscard]] QString footer() const;
    /// Draws all sheets on @p device.
    void print(QPagedPaintDevice &device) const;
    /// Replaces the file at @p path only when all of it is written; FileAccess otherwise.
    [[nodiscard]] Error writePdf(const QString &path) const;
    /// UTF-8 with a byte order mark; fields that a spreadsheet would take for a formula get an apostrophe.
    [[nodiscard]] Error writeCsv(const QString &path) const;

private:
    [[nodiscard]] QList<QPair<QString, QString>> facts() const;

    const TrailModel &m_model;
    const Person m_user;
    const QDateTime m_moment;
};

} // namespace ozm::audit
