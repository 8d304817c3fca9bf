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

    [[nodiscard]] static qint64 mostEntries();
    /// Why this cannot be printed; no error when it can.
    [[nodiscard]] Error check() const;
    [[nodiscard]] QString toHtml() const;
    /// At the foot of each page.
    [[nodiscard]] QString footer() const;
    void print(QPagedPaintDevice &device) const;
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
