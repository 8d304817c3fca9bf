#include <ozm_references/LocalResourceReference.h>

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

bool isAbsolute(const QString &path)
{
    const bool hasDrive =
        path.size() > 2 && path[0].isLetter() && path[1] == u':' && (path[2] == u'/' || path[2] == u'\\');
    return hasDrive || path.startsWith("\\\\"_L1) || QFileInfo(path).isAbsolute();
}

} // namespace

LocalResourceReference::LocalResourceReference()
    : ResourceReference(Scheme::LocalFile, {})
{}

Error LocalResourceReference::setPath(const QString &path)
{
    if (path.isEmpty())
        return Error(ErrorCode::BadParameter, u"An empty path does not refer to a file."_s);
    if (path.contains(QChar(u'\0')))
        return Error(ErrorCode::BadParameter, u"A path with a null character does not refer to a file."_s);
    setLocation(isAbsolute(path) ? path : QFileInfo(path).absoluteFilePath());
    return {};
}

} // namespace ozm
