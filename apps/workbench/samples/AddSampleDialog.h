#pragma once

#include <QDialog>
#include <QMap>

class QLabel;
class QLineEdit;

namespace workbench {

class SampleEditor;

/// Asks for a new sample, and stays open with the reason when the editor does not take it.
class AddSampleDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AddSampleDialog(SampleEditor &editor, QWidget *parent = nullptr);

    void accept() override;

private:
    SampleEditor &m_editor;
    QMap<QString, QLineEdit *> m_fields;
    QLabel *m_reason = nullptr;
};

} // namespace workbench
