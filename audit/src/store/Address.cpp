#include "StoreBackend.h"

#include "../Texts.h"

#include <QFileInfo>
#include <QUrlQuery>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

bool hasScheme(const QString &text)
{
    // A single letter before the colon is a drive.
    const QString before = text.section(u':', 0, 0);
    return before.size() > 1 && before.size() < text.size() &&
           std::all_of(before.cbegin(), before.cend(), [](QChar c) { return c.isLetter(); });
}

} // namespace

Result<Address> Address::parse(const QString &text)
{
    Address address;
    const QString whole = hasScheme(text) ? text : u"sqlite:"_s + text;
    address.scheme = whole.section(u':', 0, 0);
    if (address.scheme == "sqlite"_L1) {
        const QString rest = whole.section(u':', 1);
        const qsizetype question = rest.lastIndexOf(u'?');
        const QUrlQuery query(question < 0 ? QString() : rest.sliced(question + 1));
        address.path = question < 0 ? rest : rest.first(question);
        address.sharing = query.queryItemValue(u"sharing"_s);
        address.vfs = query.queryItemValue(u"vfs"_s);
        // Absolute: the working folder may be another one later.
        if (!address.path.isEmpty() && address.vfs.isEmpty())
            address.path = QFileInfo(address.path).absoluteFilePath();
    } else {
        address.url = QUrl(whole);
    }
    if ((address.scheme == "sqlite"_L1 && address.path.isEmpty()) ||
        (!address.sharing.isEmpty() && address.sharing != "processes"_L1)) {
        return Error(ErrorCode::BadParameter,
                     Texts::tr("\"%1\" is not the address of an audit trail.").arg(address.shown()))
            .ecatch(OZM_HERE);
    }
    return address;
}

QString Address::shown() const
{
    if (scheme == "sqlite"_L1)
        return path;
    // A password may be in either place.
    QUrl plain = url;
    QUrlQuery query(url);
    query.removeAllQueryItems(u"password"_s);
    plain.setQuery(query);
    return plain.toString(QUrl::RemovePassword);
}

} // namespace ozm::audit
