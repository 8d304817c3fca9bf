#pragma once

#include <ozm_widgets/ShortCodes.h>

#include <QHash>
#include <QMap>
#include <QStandardItemModel>

namespace ozm::editor {

/// The type under which templates are copied and dragged: their source, in UTF-8.
inline constexpr auto kTemplateMimeType = "application/x-ozm-template-source";

/// The codes that a template may have, each once, under the names that they have on screen.
class CodeModel : public QStandardItemModel
{
    Q_OBJECT

public:
    enum Role
    {
        CodeRole = Qt::UserRole + 1, ///< With brackets.
        NameRole,                    ///< What a user may begin to type.
        SearchRole                   ///< Everything by which a user may know it.
    };

    explicit CodeModel(QObject *parent);

    /// @p parameters are the values of codes that are known now.
    void setCodes(const QList<ShortCode> &codes, const QMap<QString, QVariant> &parameters);

    [[nodiscard]] QHash<QString, QString> displayNames() const;
    [[nodiscard]] QString codeAt(int row) const;
    [[nodiscard]] bool isKnown(const QString &code) const;
    [[nodiscard]] QString toolTip(const QString &code) const;
    /// As the code's implementation answers; unknown codes may go.
    [[nodiscard]] bool mayRemove(const QString &code) const;

    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indexes) const override;

private:
    QList<ShortCode> m_codes;
};

} // namespace ozm::editor
