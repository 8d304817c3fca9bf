#pragma once

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QScrollBar>
#include <QtTest>

#include <ozm_widgets/ReportView.h>

#include <optional>

namespace ozm::gallery {

using namespace Qt::StringLiterals;

inline std::optional<QString> outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) {
        qWarning("%s cannot be run: %s", qPrintable(program), qPrintable(process.errorString()));
        return std::nullopt;
    }
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// Letters that are set as one are single ones again.
inline QStringList wordsOf(const QString &text)
{
    return text.normalized(QString::NormalizationForm_KC).simplified().split(u' ', Qt::SkipEmptyParts);
}

/// The text of each page.
inline QStringList pdfPages(const QString &pdf)
{
    const auto text = outputOf(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s});
    return text ? text->split(u'\f', Qt::SkipEmptyParts) : QStringList();
}

/// A page of @p pdf, from 1, in dots.
inline QImage pdfPicture(const QString &pdf, int page, const QSize &size)
{
    const QString file = pdf + u"-page"_s;
    const QString number = QString::number(page);
    (void)outputOf(u"pdftoppm"_s, {u"-png"_s, u"-singlefile"_s, u"-f"_s, number, u"-l"_s, number,
                                   u"-scale-to-x"_s, QString::number(size.width()), u"-scale-to-y"_s,
                                   QString::number(size.height()), pdf, file});
    const QImage picture(file + u".png"_s);
    QFile::remove(file + u".png"_s);
    return picture;
}

/// The pages of a ReportView as a person sees them and copies from them.
class SeenPages
{
public:
    explicit SeenPages(ReportView &view)
        : m_view(view)
    {}

    /// Scrolls the page @p number, from 1, to the top, and gives its place in the viewport.
    QRectF goTo(int number)
    {
        QScrollBar *bar = m_view.verticalScrollBar();
        const double step =
            double(bar->maximum() + m_view.viewport()->height() - kDesk) / std::max(1, m_view.pageCount());
        bar->setValue(int((number - 1) * step));
        const double height = step - kDesk;
        const double width = height * kPortrait;
        return {std::max(kDesk, (m_view.viewport()->width() - width) / 2),
                kDesk + (number - 1) * step - bar->value(), width, height};
    }

    [[nodiscard]] QImage picture(int number)
    {
        const QRectF sheet = goTo(number);
        return m_view.viewport()->grab(sheet.toRect()).toImage();
    }

    /// The words that a person meets who double-clicks down the page, @p left of its width from its left edge.
    [[nodiscard]] QStringList wordsDown(int number, double left)
    {
        const QRectF sheet = goTo(number);
        QWidget *viewport = m_view.viewport();
        QStringList words;
        for (int y = 0; y < int(sheet.height()); y += kStep) {
            const QPoint place = (sheet.topLeft() + QPointF(left * sheet.width(), y)).toPoint();
            QTest::mouseDClick(viewport, Qt::LeftButton, {}, place);
            QTest::keyClick(&m_view, Qt::Key_C, Qt::ControlModifier);
            const QString word = QApplication::clipboard()->text();
            if (words.isEmpty() || words.constLast() != word)
                words.append(word);
        }
        QTest::mouseClick(viewport, Qt::LeftButton, {}, sheet.topLeft().toPoint());
        return words;
    }

private:
    static constexpr int kStep = 4; // less than a row is high
    static constexpr double kDesk = 12;
    static constexpr double kPortrait = 210.0 / 297;

    ReportView &m_view;
};

/// The largest difference of grey between @p a and @p b, of 255, over squares that letters disappear in.
inline int coarseDifference(const QImage &a, const QImage &b)
{
    constexpr int kSquare = 12;
    const QSize coarse = a.size() / kSquare;
    const auto blurred = [&coarse](const QImage &picture) {
        return picture.convertToFormat(QImage::Format_RGB32)
            .scaled(coarse, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_Grayscale8);
    };
    const QImage one = blurred(a);
    const QImage other = blurred(b);
    int most = 0;
    for (int y = 0; y < coarse.height(); ++y)
        for (int x = 0; x < coarse.width(); ++x)
            most = std::max(most, std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))));
    return most;
}

inline QImage sideBySide(const QImage &left, const QImage &right)
{
    QImage both(left.width() + right.width() + 12, std::max(left.height(), right.height()),
                QImage::Format_RGB32);
    both.fill(Qt::darkGray);
    QPainter painter(&both);
    painter.drawImage(QRect(QPoint(), left.size()), left);
    painter.drawImage(QRect(QPoint(left.width() + 12, 0), right.size()), right);
    return both;
}

} // namespace ozm::gallery
