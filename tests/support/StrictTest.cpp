#include "StrictTest.h"

namespace ozm::test {

void StrictTest::init()
{
    // Apart from what the screenless platform says of windows that are shown or raised.
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
}

void expectWarning(const QString &text)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(text)));
}

} // namespace ozm::test
