#pragma once

#include <ozm_widgets/ozm_widgets_export.h>

#include <QList>
#include <QMap>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QVariant>

#include <memory>

class ShortCode;

/**
 * How a short code behaves: what it is called on screen, and whether it may be removed.
 *
 * Derive from it to compute a display name, to veto a removal, or to prepare the code it is attached to,
 * and hand the object to ShortCode::setImplementation(). Copies of a code share one implementation.
 */
class OZM_WIDGETS_EXPORT ShortCodeImplementation : public QObject
{
    Q_OBJECT

public:
    explicit ShortCodeImplementation(QObject *parent = nullptr);
    ~ShortCodeImplementation() override;

    /// Asked before the display name of @p shortCode is; true goes ahead.
    virtual bool beforeGetDisplayName(ShortCode *shortCode, const QMap<QString, QVariant> &parameters);
    /// Asked before the code is removed; false keeps it.
    virtual bool beforeRemove();
    /// Called once, right after this object has become the implementation of @p shortCode.
    virtual void init(ShortCode *shortCode);
    /// The text that stands for the code called @p name on screen.
    virtual QString displayName(const QString &name);
};

/**
 * A placeholder in a report template, such as "[Name]", as an editor offers it.
 *
 *     const ShortCode code(u"[Charge]"_s, u"Charge"_s, u"Charge state"_s, {});
 *     cursor.insertText(code.code);
 *
 * A value: copies share the implementation until one of them is given another, and a move leaves a code
 * behind that is like a new one but for its texts. Two codes are equal when their four texts are, whatever their
 * implementations.
 */
class OZM_WIDGETS_EXPORT ShortCode
{
public:
    class Private;

    ShortCode();
    ShortCode(const QString &code, const QString &name, const QString &toolTip, const QString &extraText);
    ShortCode(const ShortCode &other);
    ShortCode(ShortCode &&other) noexcept;
    ShortCode &operator=(const ShortCode &other);
    ShortCode &operator=(ShortCode &&other) noexcept;
    ~ShortCode();

    bool operator==(const ShortCode &other) const;

    /// The name as the implementation shows it.
    [[nodiscard]] QString displayName();
    /// Hands @p parameters to the implementation before the name is asked for; its answer.
    [[nodiscard]] bool beforeGetDisplayName(const QMap<QString, QVariant> &parameters);
    /// True when the code may be taken out of a template; the implementation decides.
    [[nodiscard]] bool beforeRemove() const;

    /// Never null: a code without one of its own has the plain one.
    [[nodiscard]] QSharedPointer<ShortCodeImplementation> implementation();
    /// Takes ownership of @p implementation, puts it in the place of the present one, and then has it
    /// initialise itself for this code. Null is refused with a warning: the present one stays.
    void setImplementation(ShortCodeImplementation *implementation);

    QString code;      ///< As it stands in a template, with its brackets.
    QString name;      ///< Without brackets.
    QString toolTip;   ///< What the code stands for.
    QString extraText; ///< Free for the application.

private:
    Private *part();

    std::unique_ptr<Private> d; // Null only after a move, until it is needed again.
};

/// Looks up codes by their text with brackets; letter case counts.
namespace ShortCodeUtils {

/// True when one of @p codes has the text @p key, brackets and all.
[[nodiscard]] OZM_WIDGETS_EXPORT bool keyExist(const QString &key, const QList<ShortCode> &codes);

/// The first code whose text is @p key; an empty one when there is none.
[[nodiscard]] OZM_WIDGETS_EXPORT ShortCode findValue(const QString &key, const QList<ShortCode> &codes);

} // namespace ShortCodeUtils

/**
 * The codes in a template's text, in order of appearance, each as often as it appears.
 *
 * A code begins with "[", ends with the next "]", and stays on one line. Without brackets, the text after
 * the last "[" counts, so that a bracket left open does not swallow the code after it: "[a[b]" gives "b".
 *
 *     getCodes(u"[Name], charge [Charge]"_s, false); // Name, Charge
 *
 * Without brackets, the first "OligoAliasName" and the first "OligoAccessionName" come out under their
 * present names, "ProteinAliasName" and "ProteinAccessionName". Takes time linear in the text; any thread.
 */
[[nodiscard]] OZM_WIDGETS_EXPORT QList<QString> getCodes(const QString &text, bool withBrackets);
