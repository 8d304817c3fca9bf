#pragma once

#include <QRegularExpression>
#include <QtTest>

namespace ozm::test {

/**
 * The base of all test classes: a warning that no test declared fails it.
 */
class StrictTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
};

/// Declares one warning whose text holds @p text; that it never comes fails the test.
void expectWarning(const QString &text);

} // namespace ozm::test
