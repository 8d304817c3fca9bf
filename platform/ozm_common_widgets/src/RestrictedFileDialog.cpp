#include <ozm_common_widgets/RestrictedFileDialog.h>

#include <QPointer>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

/**
 * A dialog of the system. It has to be a plain QFileDialog, as only those turn native; it stands on the heap,
 * where its parent may delete it.
 */
class NativeDialog
{
public:
    NativeDialog(QWidget *parent, const QString &caption, const QString &dir, const QString &filter,
                 QFileDialog::Options options)
        : m_dialog(new QFileDialog(parent, caption, dir, filter))
    {
        m_dialog->setOptions(options);
        m_dialog->setSupportedSchemes({u"file"_s});
    }
    ~NativeDialog() { delete m_dialog.data(); }
    Q_DISABLE_COPY_MOVE(NativeDialog)

    QFileDialog *operator->() const { return m_dialog.data(); }

    /// Has a bare name get the extension of the filter, as a dialog that the system draws does by itself.
    void addExtensions()
    {
        const auto follow = [dialog = m_dialog](const QString &filter) {
            static const QRegularExpression extension(u"\\*\\.([a-zA-Z0-9]+)"_s);
            dialog->setDefaultSuffix(extension.match(filter).captured(1));
        };
        QObject::connect(m_dialog, &QFileDialog::filterSelected, m_dialog, follow);
        follow(m_dialog->selectedNameFilter());
    }

    QStringList ask(QString *selectedFilter)
    {
        if (selectedFilter && !selectedFilter->isEmpty())
            m_dialog->selectNameFilter(*selectedFilter);
        if (m_dialog->acceptMode() == QFileDialog::AcceptSave)
            addExtensions();
        if (m_dialog->exec() != QDialog::Accepted || !m_dialog)
            return {};
        if (selectedFilter)
            *selectedFilter = m_dialog->selectedNameFilter();
        return m_dialog->selectedFiles();
    }

private:
    const QPointer<QFileDialog> m_dialog;
};

} // namespace

RestrictedFileDialog::RestrictedFileDialog(QWidget *parent, const QString &caption, const QString &directory,
                                           const QString &filter)
    : QFileDialog(parent, caption, directory, filter)
{}

RestrictedFileDialog::~RestrictedFileDialog() = default;

void RestrictedFileDialog::setOptions(QFileDialog::Options options)
{
    QFileDialog::setOptions(options | (this->options() & QFileDialog::DontUseNativeDialog));
}

void RestrictedFileDialog::setVisible(bool visible)
{
    // A caller who knows only the base class sets options past this class. A derived class with a meta-object
    // is never native, so that all that is left to mend is what the options say.
    if (visible && metaObject() != &RestrictedFileDialog::staticMetaObject)
        setOption(QFileDialog::DontUseNativeDialog);
    QFileDialog::setVisible(visible);
}

QString RestrictedFileDialog::getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                              const QString &filter, QString *selectedFilter,
                                              QFileDialog::Options options)
{
    NativeDialog dialog(parent, caption, dir, filter, options);
    dialog->setFileMode(QFileDialog::ExistingFile);
    return dialog.ask(selectedFilter).value(0);
}

QStringList RestrictedFileDialog::getOpenFileNames(QWidget *parent, const QString &caption,
                                                   const QString &dir, const QString &filter,
                                                   QString *selectedFilter, QFileDialog::Options options)
{
    NativeDialog dialog(parent, caption, dir, filter, options);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    return dialog.ask(selectedFilter);
}

QString RestrictedFileDialog::getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                              const QString &filter, QString *selectedFilter,
                                              QFileDialog::Options options)
{
    NativeDialog dialog(parent, caption, dir, filter, options);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    return dialog.ask(selectedFilter).value(0);
}

QString RestrictedFileDialog::getExistingDirectory(QWidget *parent, const QString &caption,
                                                   const QString &dir, QFileDialog::Options options)
{
    NativeDialog dialog(parent, caption, dir, {}, options);
    dialog->setFileMode(QFileDialog::Directory);
    return dialog.ask(nullptr).value(0);
}

} // namespace ozm
