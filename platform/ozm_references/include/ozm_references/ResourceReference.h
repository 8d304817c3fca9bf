#pragma once

#include <ozm_common_stable/Result.h>
#include <ozm_references/ozm_references_export.h>

#include <QSharedPointer>
#include <QString>

namespace ozm {

/**
 * Where something is kept: a scheme, which says how to get at it, and a location in the terms of that scheme.
 *
 * The text form is for settings and projects: "file:/data/run 7.raw", "server:lims/run-7". It is one line
 * whatever the location holds (control characters and "%" are written as %XX) and reads back to the same
 * reference.
 *
 *     const auto reference = ozm::ResourceReference::fromString(settings.value(key).toString());
 *     if (reference && reference.value()->isScheme(ozm::ResourceReference::Scheme::LocalFile))
 *         open(reference.value()->location());
 *
 * Never changes once it is shared; then safe from any thread.
 */
class OZM_REFERENCES_EXPORT ResourceReference
{
public:
    /// The numbers are stored by applications and never change.
    enum class Scheme : int
    {
        None = 0,
        Database = 1,
        Server = 2,
        LocalFile = 3,
    };

    ResourceReference(Scheme scheme, const QString &location);
    virtual ~ResourceReference();

    /// The reference that @p text stands for; code 2 when its scheme is unknown or its location empty, and
    /// for a local file whatever LocalResourceReference::setPath() refuses.
    [[nodiscard]] static Result<QSharedPointer<ResourceReference>> fromString(const QString &text);
    /// The reference as text, which ResourceReferenceUtils reads back.
    [[nodiscard]] QString toString() const;

    /// Where the resource is kept.
    [[nodiscard]] Scheme scheme() const { return m_scheme; }
    /// True when the reference is of this scheme.
    [[nodiscard]] bool isScheme(Scheme scheme) const { return m_scheme == scheme; }
    /// The location in the terms of the scheme; of a local file its absolute path.
    [[nodiscard]] QString location() const { return m_location; }

protected:
    ResourceReference(const ResourceReference &) = default;
    ResourceReference &operator=(const ResourceReference &) = default;

    /// Refers to another place within the same scheme.
    void setLocation(const QString &location) { m_location = location; }

private:
    Scheme m_scheme;
    QString m_location;
};

} // namespace ozm
