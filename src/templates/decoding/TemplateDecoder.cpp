#include "templates/decoding/TemplateDecoder.h"

#include "TemplateEditorJSEngine_p.h"
#include "support/Logging.h"
#include "templates/syntax/NamePattern.h"

#include "support/Platform.h"
#include <ozm_common_core_mini/ColumnFriendlyName.h>
#include <ozm_common_core_mini/GroupSummary.h>
#include <ozm_common_core_mini/RowNode.h>
#include <ozm_common_core_mini/TextUtils.h>

#include <QHash>
#include <QMetaProperty>

#include <algorithm>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using FriendlyName = ColumnFriendlyName::FriendlyNameStruct;
using FriendlyNames = QMap<QString, FriendlyName>;

// Digits after the point of a number that no column describes.
constexpr int kDecimals = 3;

QString keyOf(const QString &name)
{
    return SQUARE_BRACKETS_PATTERN.arg(name);
}

QString propertyText(const QVariant &value, const FriendlyName *column)
{
    if (column)
        return column->valueToString(value);
    const bool isReal = value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float;
    return isReal ? QString::number(value.toDouble(), 'f', kDecimals) : value.toString();
}

/// The answers of a type's own properties, looked up once for a decoding.
class OwnProperties
{
public:
    explicit OwnProperties(const DecodeTecExtraData &data)
        : m_data(data)
    {
        const QMetaObject &type = data.metaObject;
        for (int index = type.propertyOffset(); index < type.propertyCount(); ++index)
            m_names.append(QString::fromLatin1(type.property(index).name()));
    }

    /// The first property whose name the pattern matches, with its text.
    [[nodiscard]] std::optional<ozm::TemplateField> fieldOf(const ozm::NamePattern &pattern)
    {
        const auto found = std::ranges::find_if(
            std::as_const(m_names), [&pattern](const QString &name) { return pattern.matches(name); });
        if (found == m_names.cend())
            return std::nullopt;
        const auto index = static_cast<int>(found - m_names.cbegin());
        const QVariant value = m_data.read(m_data.metaObject.propertyOffset() + index);
        return ozm::TemplateField{value, propertyText(value, column(*found))};
    }

private:
    [[nodiscard]] const FriendlyName *column(const QString &name)
    {
        auto known = m_columns.constFind(name);
        if (known == m_columns.constEnd()) {
            const FriendlyNames &names = ColumnFriendlyName::getColumnFriendlyNames();
            const auto found = names.constFind(ozm::columnMatching(name));
            known = m_columns.insert(name, found != names.constEnd() ? &*found : nullptr);
        }
        return *known;
    }

    const DecodeTecExtraData &m_data;
    QList<QString> m_names;
    QHash<QString, const FriendlyName *> m_columns;
};

struct PropertyPlace
{
    const DecodeTecExtraData *data = nullptr;
    int index = -1;
};

/// The property that the one-row decoding takes for a code which the row does not know.
PropertyPlace propertyOf(const QString &code, const QList<DecodeTecExtraData> &extraData)
{
    const QByteArray name = ozm::TextUtils::toLowerFirstChar(code).toLatin1();
    for (const DecodeTecExtraData &data : extraData)
        if (const int index = data.metaObject.indexOfProperty(name.constData()); index >= 0)
            return {&data, index};
    return {};
}

/// Where the one-row decoding finds the values of one code.
class RowSource
{
public:
    RowSource(const QString &code, const RowNode &row, const QList<DecodeTecExtraData> &extraData)
        : m_code(code)
        , m_key(keyOf(code))
    {
        const FriendlyNames &names = ColumnFriendlyName::getColumnFriendlyNames();
        const auto column = names.constFind(code);
        m_isColumn = column != names.constEnd();
        bool found = false;
        const QVariant value = row.getDataAt(code, &found, false);
        if (found && m_isColumn)
            m_text = column->valueToString(value);
        else
            findProperty(extraData);
    }

    void store(QMap<QString, QVariant> &parameters)
    {
        if (m_text) {
            if (!m_stored)
                parameters.insert(m_key, *m_text);
            m_stored = true;
        } else if (m_extra) {
            // Read each time: a property may answer differently, and the last answer counts.
            parameters.insert(m_key, m_extra->read(m_property));
        } else if (m_isColumn) {
            qCWarning(lcOzmWidgets).noquote()
                << u"FriendlyNames contained mapping for code[%1], but RowNode and others data structures "
                   "did not contain data"_s.arg(m_code);
        }
    }

private:
    void findProperty(const QList<DecodeTecExtraData> &extraData)
    {
        const PropertyPlace place = propertyOf(m_code, extraData);
        m_extra = place.data;
        m_property = place.index;
    }

    QString m_code;
    QString m_key;
    bool m_isColumn = false;
    bool m_stored = false;
    std::optional<QString> m_text;
    const DecodeTecExtraData *m_extra = nullptr;
    int m_property = -1;
};

/// True when a script has the code at @p position as a text of its own, as in inputParameters["[Name]"].
bool isQuoted(QStringView text, qsizetype position, qsizetype length)
{
    if (position == 0 || position + length >= text.size())
        return false;
    const QChar quote = text[position - 1];
    return (quote == u'"' || quote == u'\'' || quote == u'`') && text[position + length] == quote;
}

QList<ozm::UnresolvedCode> unresolvedCodes(const ozm::TemplateText &parsed,
                                           const QMap<QString, QVariant> &parameters)
{
    QList<ozm::UnresolvedCode> codes;
    auto piece = parsed.pieces().cbegin();
    for (const ozm::syntax::Mark &mark : parsed.marks().marks) {
        if (mark.name < 0)
            continue;
        const QString &code = parsed.marks().names.at(mark.name);
        if (code.contains(u'\n') || parameters.contains(code))
            continue;
        while (piece != parsed.pieces().cend() && piece->start + piece->code.size() <= mark.position)
            ++piece;
        const bool inScript = piece != parsed.pieces().cend() && piece->start <= mark.position;
        if (!inScript || isQuoted(parsed.text(), mark.position, code.size()))
            codes.append({code, mark.position});
    }
    return codes;
}

} // namespace

QString TemplateDecoder::decode(const QString &content, const QList<DecodeTecExtraData> &extraData,
                                ozm::TemplateReport *report)
{
    const auto parsed = m_reader.d->parsed(content);
    std::vector<OwnProperties> sources(extraData.cbegin(), extraData.cend());
    std::vector<ozm::NamePattern> patterns(parsed->names().cbegin(), parsed->names().cend());
    QMap<QString, QVariant> parameters;
    for (const int index : parsed->sequence()) {
        for (OwnProperties &source : sources) {
            if (const auto field = source.fieldOf(patterns[static_cast<std::size_t>(index)])) {
                parameters.insert(keyOf(parsed->names().at(index)), field->shown);
                break;
            }
        }
    }
    return read(*parsed, parameters, report);
}

QString TemplateDecoder::decode(const QString &text, const RowNode &row,
                                const QList<DecodeTecExtraData> &extraData, ozm::TemplateReport *report)
{
    const auto parsed = m_reader.d->parsed(text);
    std::vector<RowSource> sources;
    sources.reserve(static_cast<std::size_t>(parsed->names().size()));
    for (const QString &name : parsed->names())
        sources.emplace_back(name, row, extraData);
    QMap<QString, QVariant> parameters;
    for (const int index : parsed->sequence())
        sources[static_cast<std::size_t>(index)].store(parameters);
    return read(*parsed, parameters, report);
}

QString TemplateDecoder::decode(const QString &text, const ValueOf &valueOf, ozm::TemplateReport *report)
{
    const auto parsed = m_reader.d->parsed(text);
    QMap<QString, QVariant> parameters;
    for (const QString &name : parsed->names())
        if (const auto value = valueOf(name))
            parameters.insert(keyOf(name), *value);
    return read(*parsed, parameters, report);
}

QString TemplateDecoder::read(const ozm::TemplateText &parsed, const QMap<QString, QVariant> &parameters,
                              ozm::TemplateReport *report)
{
    QString text = m_reader.d->read(parsed, parameters, report, m_runsScripts);
    if (report) {
        report->text = text;
        report->unresolved = unresolvedCodes(parsed, parameters);
    }
    return text;
}

namespace ozm {

std::optional<TemplateField> fieldOf(const QString &name, const RowNode &row)
{
    bool found = false;
    const QVariant value = row.getDataAt(name, &found, false);
    if (!found)
        return std::nullopt;
    const FriendlyNames &names = ColumnFriendlyName::getColumnFriendlyNames();
    const auto column = names.constFind(name);
    return TemplateField{value, column != names.constEnd() ? column->valueToString(value) : value};
}

std::optional<TemplateField> fieldOf(const QString &name, const RowNode &row,
                                     const QList<DecodeTecExtraData> &extraData)
{
    if (ColumnFriendlyName::getColumnFriendlyNames().contains(name))
        if (auto field = fieldOf(name, row))
            return field;
    const PropertyPlace place = propertyOf(name, extraData);
    if (!place.data)
        return fieldOf(name, row);
    const QVariant value = place.data->read(place.index);
    return TemplateField{value, value};
}

std::optional<TemplateField> fieldOf(const QString &name, const QList<DecodeTecExtraData> &extraData)
{
    const NamePattern pattern(name);
    for (const DecodeTecExtraData &data : extraData)
        if (auto field = OwnProperties(data).fieldOf(pattern))
            return field;
    return std::nullopt;
}

} // namespace ozm

SummaryRow::SummaryRow(const QList<RowNode *> &rows)
    : m_root(std::make_unique<RowNode>(*ozm::platform::rootOf(rows.constFirst())))
    , m_row(m_root->addNewChildMatchRootDataSize())
{
    for (const RowNode *row : rows)
        m_row->addChild(std::make_unique<RowNode>(*row).release(), true);
    ozm::rn::GroupSummary summary;
    const FriendlyNames &names = ColumnFriendlyName::getColumnFriendlyNames();
    for (auto name = names.cbegin(); name != names.cend(); ++name)
        summary.set(name.key(), *name);
    summary.update(m_root.get());
}

SummaryRow::~SummaryRow() = default;
