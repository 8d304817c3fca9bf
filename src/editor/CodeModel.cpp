#include "editor/CodeModel.h"

#include <QMimeData>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

QString displayName(ShortCode &code, const QMap<QString, QVariant> &parameters)
{
    const QString name = code.beforeGetDisplayName(parameters) ? code.displayName() : code.name;
    return name.isEmpty() ? code.code : name;
}

QStandardItem *makeItem(ShortCode &code, const QMap<QString, QVariant> &parameters)
{
    const QString name = displayName(code, parameters);
    auto *item = new QStandardItem(name);
    const QString help = code.toolTip.isEmpty() || code.toolTip == name ? QString() : u'\n' + code.toolTip;
    item->setToolTip(code.code + help);
    item->setData(code.code, CodeModel::CodeRole);
    const QString names = code.code.mid(1) + u' ' + name;
    item->setData(names, CodeModel::NameRole);
    item->setData(names + u' ' + code.toolTip, CodeModel::SearchRole);
    item->setData(QVariant(name + ", "_L1 + code.code), Qt::AccessibleTextRole);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled);
    return item;
}

} // namespace

CodeModel::CodeModel(QObject *parent)
    : QStandardItemModel(parent)
{}

void CodeModel::setCodes(const QList<ShortCode> &codes, const QMap<QString, QVariant> &parameters)
{
    clear();
    m_codes.clear();
    for (const ShortCode &code : codes) {
        if (code.code.isEmpty() || ShortCodeUtils::keyExist(code.code, m_codes))
            continue;
        m_codes.append(code);
        appendRow(makeItem(m_codes.last(), parameters));
    }
    sort(0);
}

QHash<QString, QString> CodeModel::displayNames() const
{
    QHash<QString, QString> names;
    for (int row = 0; row < rowCount(); ++row)
        names.insert(codeAt(row), item(row)->text());
    return names;
}

QString CodeModel::codeAt(int row) const
{
    return index(row, 0).data(CodeRole).toString();
}

bool CodeModel::isKnown(const QString &code) const
{
    return m_codes.isEmpty() || ShortCodeUtils::keyExist(code, m_codes);
}

QString CodeModel::toolTip(const QString &code) const
{
    if (!isKnown(code))
        return tr("No value is known for the code %1.").arg(code);
    const QString help = ShortCodeUtils::findValue(code, m_codes).toolTip;
    return help.isEmpty() ? code : code + u'\n' + help;
}

bool CodeModel::mayRemove(const QString &code) const
{
    return !ShortCodeUtils::keyExist(code, m_codes) ||
           ShortCodeUtils::findValue(code, m_codes).beforeRemove();
}

QStringList CodeModel::mimeTypes() const
{
    return {QString::fromLatin1(kTemplateMimeType), u"text/plain"_s};
}

QMimeData *CodeModel::mimeData(const QModelIndexList &indexes) const
{
    QString codes;
    for (const QModelIndex &index : indexes)
        codes += index.data(CodeRole).toString();
    auto *data = new QMimeData;
    data->setText(codes);
    data->setData(QString::fromLatin1(kTemplateMimeType), codes.toUtf8());
    return data;
}

} // namespace ozm::editor
