#pragma once

#include "reports/ReportContext.h"
#include "reports/ReportLists.h"

#include <ozm_common_core_mini/RowNode.h>
#include <ozm_widgets/AbstractTemplateEditor.h>

#include <vector>

namespace workbench {

/// Edits templates of reports on samples: it offers the samples' columns and what a report can say beside
/// them, and previews the samples that it was given; without any, made-up ones. The menu "Gallery" has templates to start
/// from.
class WorkbenchTemplateEditor : public AbstractTemplateEditor
{
    Q_OBJECT

public:
    WorkbenchTemplateEditor(std::vector<RowNode> rows, const ReportContext &context,
                            QWidget *parent = nullptr);
    ~WorkbenchTemplateEditor() override;

    [[nodiscard]] QList<ShortCode> shortCodes() const override;
    [[nodiscard]] QList<RowNode *> previewRows() const override;
    [[nodiscard]] QString previewName(const RowNode &row) const override;
    [[nodiscard]] QList<DecodeTecExtraData> extraData(const RowNode *row) const override;
    [[nodiscard]] QMap<QString, QList<RowNode *>> rowLists(const RowNode *row) const override;
    [[nodiscard]] ozm::ReportPaperOptions paperOptions() const override;

private:
    void addGallery();
    void startFrom(const QString &templatePath);

    std::vector<RowNode> m_rows;
    const ReportContext m_context;
    /// Decoding reads this after extraData() has returned.
    mutable ReportContext m_current;
    mutable ReportLists m_lists;
};

} // namespace workbench
