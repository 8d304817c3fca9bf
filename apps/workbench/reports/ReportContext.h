#pragma once

#include "reports/ReportTrail.h"

#include <QByteArray>
#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVariantList>

#include <functional>
#include <vector>

namespace workbench {

/**
 * Values that a report can show beside the columns of its samples: a code in a template for each property, such as
 * "[ReportUser]". Scripts find all samples of the report in "[Samples]", a list of objects.
 */
class ReportContext
{
    Q_GADGET
    Q_PROPERTY(QString reportUser MEMBER user)
    Q_PROPERTY(QString reportTime READ time)
    Q_PROPERTY(QString sourceFile MEMBER source)
    Q_PROPERTY(int sampleCount READ sampleCount)
    Q_PROPERTY(QVariantList samples MEMBER samples)
    // Of the one sample that a page is about; empty on the pages of a group.
    Q_PROPERTY(QString sampleNumber MEMBER number)
    Q_PROPERTY(QString format MEMBER format)
    Q_PROPERTY(QString description MEMBER description)
    Q_PROPERTY(QString kind MEMBER kind)
    Q_PROPERTY(QString size MEMBER size)
    Q_PROPERTY(QString path MEMBER path)
    Q_PROPERTY(QString signatures MEMBER signatures)
    Q_PROPERTY(int changedSinceEntry MEMBER changedSinceEntry)
    Q_PROPERTY(QByteArray ionPlot READ ionPlot)

public:
    ReportContext() = default;
    ReportContext(const QString &userName, const QString &sourceFile, const std::vector<RowNode> &rows);

    /// The same with what is known of the data of @p row.
    [[nodiscard]] ReportContext about(const RowNode &row) const;

    [[nodiscard]] QString time() const { return moment.toString(Qt::ISODate); }
    /// The expected ions over m/z, as SVG; empty where the mass is not known.
    [[nodiscard]] QByteArray ionPlot() const;
    [[nodiscard]] int sampleCount() const { return static_cast<int>(samples.size()); }

    QString user;
    QString source;
    QDateTime moment = QDateTime::currentDateTime();
    QVariantList samples;
    QString number;
    QString format;
    QString description;
    QString kind;
    QString size;
    QString path;
    QString signatures;
    int changedSinceEntry = 0;
    double mass = 0;
    int charge = 0;
    /// Looks up what the audit trail says about a row; without it, nothing is said.
    std::function<ReportTrail(const RowNode &)> trailOf;
};

} // namespace workbench
