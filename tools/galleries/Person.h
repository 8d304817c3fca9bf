#pragma once

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QToolButton>
#include <QtTest>

#include <functional>
#include <utility>

namespace ozm::gallery {

using namespace Qt::StringLiterals;

/// Fields of a dialog by object name, and the text that is typed or chosen there.
using Fields = QList<std::pair<QString, QString>>;

/**
 * A person at a window: everything is done by events of the mouse and of keys, to the widget that the window system
 * would send them to. A step that does not lead where it should is told, and isLost() from then on.
 *
 *     Person person(window, folder);
 *     person.answer({u"tableRows"_s, u"2"_s});
 *     person.choose(u"insertMenu"_s, u"insertTableAction"_s);
 *     person.take(u"table"_s);
 */
class Person : public QObject
{
public:
    Person(QMainWindow &window, QString folder)
        : m_window(window)
        , m_folder(std::move(folder))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<QDialog *>(watched) && m_answer)
            QTimer::singleShot(0, watched, std::exchange(m_answer, {}));
        return false;
    }

    [[nodiscard]] bool isLost() const { return m_isLost; }

    void getLost(const QString &where)
    {
        m_isLost = true;
        qWarning("Nothing leads on at \"%s\".", qPrintable(where));
    }

    /// A picture of the window, behind those taken before.
    void take(const QString &name)
    {
        QTest::qWait(kSettleMs);
        take(m_window, name);
    }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, int times = 1)
    {
        for (; times > 0; --times)
            if (QWidget *target = receiver())
                QTest::keyClick(target, Qt::Key(key), modifiers);
    }

    void type(const QString &text)
    {
        for (const QChar letter : text) {
            if (letter == u'\n')
                press(Qt::Key_Return);
            else if (letter == u'\t')
                press(Qt::Key_Tab);
            else if (QWidget *target = receiver())
                QTest::keyClick(target, letter.toLatin1());
        }
    }

    /// The next dialog is filled by keys and closed with Return.
    void answer(const QString &name, const Fields &fields)
    {
        m_answer = [this, name, fields] { fill(name, fields); };
    }

    /// The next dialog asks for a file: its line of names has the focus.
    void answerPath(const QString &name, const QString &path)
    {
        m_answer = [this, name, path] { fillPath(name, path); };
    }

    /// In the menu bar, as the mouse finds it there.
    void choose(const QString &menuName, const QString &actionName)
    {
        auto *menu = m_window.findChild<QMenu *>(menuName);
        auto *action = m_window.findChild<QAction *>(actionName);
        if (!menu || !action || !action->isEnabled())
            return getLost(actionName);
        QMenuBar *bar = m_window.menuBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
        if (!QTest::qWaitForWindowExposed(menu))
            return getLost(menuName);
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        comeBack(actionName);
    }

    /// On a tool bar.
    void clickButton(const QString &actionName)
    {
        for (auto *button : m_window.findChildren<QToolButton *>()) {
            if (button->isVisible() && button->isEnabled() && button->defaultAction() &&
                button->defaultAction()->objectName() == actionName) {
                QTest::mouseClick(button, Qt::LeftButton);
                return comeBack(actionName);
            }
        }
        getLost(actionName);
    }

    void pressShortcut(int key, Qt::KeyboardModifiers modifiers)
    {
        press(key, modifiers);
        comeBack(QKeySequence(key | int(modifiers)).toString());
    }

    /// In the list that a click opens.
    void pick(QComboBox &box, const QString &text)
    {
        QTest::mouseClick(&box, Qt::LeftButton);
        QAbstractItemView *list = box.view();
        if (!QTest::qWaitForWindowExposed(list->window()))
            return getLost(text);
        QTest::keyClick(list, Qt::Key_Home);
        for (int steps = 0; steps < box.count() && list->currentIndex().data() != text; ++steps)
            QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
        if (box.currentText() != text)
            getLost(text);
        comeBack(text);
    }

    /// After a dialog or a popup has gone.
    void comeBack(const QString &where)
    {
        // As a window manager does.
        m_window.activateWindow();
        if (std::exchange(m_answer, {}) || !hasFocus(m_window))
            getLost(where);
    }

private:
    // The preview is filled and has followed the caret by then.
    static constexpr int kSettleMs = 500;
    static constexpr int kDialogMs = 60;
    static constexpr int kMostTabs = 80;

    void take(QWidget &window, const QString &name)
    {
        const QString number = u"%1"_s.arg(++m_pictures, 2, 10, QChar(u'0'));
        if (!window.grab().save(m_folder + u'/' + number + u'-' + name + u".png"_s))
            getLost(name);
    }

    /// Where the window system sends keys to.
    [[nodiscard]] QWidget *receiver()
    {
        if (QWidget *popup = QApplication::activePopupWidget())
            return popup;
        QWidget *modal = QApplication::activeModalWidget();
        QWidget &window = modal ? *modal : m_window;
        // As a window manager does after a popup has gone.
        if (QApplication::activeWindow() != &window)
            window.activateWindow();
        if (!hasFocus(window))
            getLost(window.objectName());
        return QApplication::focusWidget();
    }

    /// The toolkit's own question is also answered with yes for a window behind a dialog, and the other way round.
    [[nodiscard]] static bool hasFocus(const QWidget &window)
    {
        return QTest::qWaitFor([&window] {
            return QApplication::activeWindow() == &window && QApplication::focusWidget() &&
                   window.isAncestorOf(QApplication::focusWidget());
        });
    }

    /// So that nothing hangs.
    static void closeAll()
    {
        for (QWidget *open : {QApplication::activePopupWidget(), QApplication::activeModalWidget()})
            if (open)
                open->close();
    }

    [[nodiscard]] bool tabTo(const QWidget *field)
    {
        const auto isThere = [field] {
            const QWidget *focus = QApplication::focusWidget();
            return focus && (focus == field || field->isAncestorOf(focus));
        };
        for (int tabs = 0; tabs < kMostTabs && !isThere(); ++tabs)
            press(Qt::Key_Tab);
        return isThere();
    }

    void stepTo(const QComboBox &box, const QString &text)
    {
        press(Qt::Key_Home);
        for (int steps = 0; steps < box.count() && box.currentText() != text; ++steps)
            press(Qt::Key_Down);
        if (box.currentText() != text)
            getLost(text);
    }

    void enter(QDialog &dialog, const QString &fieldName, const QString &text)
    {
        auto *field = dialog.findChild<QWidget *>(fieldName);
        if (!field || !field->isVisible() || !field->isEnabled())
            return getLost(fieldName);
        if (auto *choice = qobject_cast<QRadioButton *>(field))
            return QTest::mouseClick(choice, Qt::LeftButton, {}, {8, choice->height() / 2});
        if (!tabTo(field))
            return getLost(fieldName);
        const auto *box = qobject_cast<QComboBox *>(field);
        if (qobject_cast<QAbstractButton *>(field))
            return press(Qt::Key_Space);
        if (box && !box->isEditable())
            return stepTo(*box, text);
        press(Qt::Key_A, Qt::ControlModifier);
        type(text);
        // The rest of a longer name that the field proposes.
        if (box)
            press(Qt::Key_Delete);
    }

    void fill(const QString &name, const Fields &fields)
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog || !hasFocus(*dialog)) {
            getLost(name);
            return closeAll();
        }
        for (const auto &[fieldName, text] : fields)
            enter(*dialog, fieldName, text);
        QTest::qWait(kDialogMs);
        take(*dialog, u"dialog-"_s + name);
        press(Qt::Key_Return);
        // Another question may stand in front of it.
        if (dialog->isVisible()) {
            getLost(name);
            closeAll();
            dialog->reject();
        }
    }

    void fillPath(const QString &name, const QString &path)
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog || !hasFocus(*dialog)) {
            getLost(name);
            return closeAll();
        }
        press(Qt::Key_A, Qt::ControlModifier);
        type(path);
        QTest::qWait(kDialogMs);
        take(*dialog, u"dialog-"_s + name);
        // The list of names that go on in this way.
        if (QWidget *popup = QApplication::activePopupWidget())
            popup->hide();
        press(Qt::Key_Return);
        if (!QTest::qWaitFor([dialog] { return dialog != QApplication::activeModalWidget(); })) {
            getLost(name);
            closeAll();
            dialog->reject();
        }
    }

    QMainWindow &m_window;
    const QString m_folder;
    std::function<void()> m_answer; ///< To the dialog that opens next.
    int m_pictures = 0;
    bool m_isLost = false;
};

} // namespace ozm::gallery
