#pragma once

#include <QRegularExpression>
#include <QtTest>

namespace ozm::test {

/**
 * The base of all test classes: a warning that no test declared with QTest::ignoreMessage fails it.
 */
class StrictTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }
};

/// Declares a warning whose text holds @p text.
inline void expectWarning(const QString &text)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(text)));
}

} // namespace ozm::test
