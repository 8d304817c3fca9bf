#include "StrictTest.h"

namespace ozm::test {

void StrictTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
}

void expectWarning(const QString &text)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(text)));
}

} // namespace ozm::test
