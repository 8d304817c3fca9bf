#pragma once

#include <ozm_widgets/SpectrumFileDialog.h>

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFileDialog>

#include <memory>

/// Makes @p count acquisitions in @p folder: half of them files, half raw folders.
inline void makeAcquisitions(const QString &folder, int count)
{
    for (int i = 0; i < count; ++i) {
        const QString name = folder + QStringLiteral("/Run %1").arg(i, 5, 10, QLatin1Char('0'));
        if (i % 2 == 0)
            QDir().mkpath(name + QStringLiteral(".d/AcqData"));
        else if (QFile file(name + QStringLiteral(".mzml")); !file.open(QIODevice::WriteOnly))
            qFatal("cannot make acquisitions");
    }
}

/// Tells when a widget has been painted.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(QWidget &widget) { widget.installEventFilter(this); }

    void wait() const
    {
        while (!m_painted)
            QCoreApplication::processEvents();
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_painted = false;
};

/// A dialog on @p folder, as an application opens it, painted for the first time.
template <typename Dialog>
std::unique_ptr<Dialog> openedOn(const QString &folder)
{
    auto dialog = std::make_unique<Dialog>(nullptr);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setDirectory(folder);
    dialog->setNameFilter(QStringLiteral("MS data (*.mzml *.d)"));
    const FirstPaint painted(*dialog);
    dialog->show();
    painted.wait();
    return dialog;
}

/// The toolkit's own, with the constructor that openedOn() calls.
class PlainFileDialog : public QFileDialog
{
public:
    explicit PlainFileDialog(QWidget *parent)
        : QFileDialog(parent, QString())
    {}
};
