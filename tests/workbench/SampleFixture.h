#pragma once

#include "audit/TrailStore.h"
#include "samples/SampleEditor.h"
#include "samples/SampleRules.h"
#include "support/Files.h"

#include <ozm_common_core_mini/ColumnNames.h>

#include <QRegularExpression>
#include <QTemporaryDir>

#include <memory>

namespace ozm::test {

using namespace Qt::StringLiterals;

/// An editor with three samples, on an audit trail in a folder of its own.
struct SampleFixture
{
    SampleFixture()
    {
        auto opened = workbench::openTrail({}, folder.path(), {});
        if (!opened)
            return;
        store = std::move(opened).value();
        editor = std::make_unique<workbench::SampleEditor>(*store, u"jdoe"_s);
        const bool written = writeFile(csvPath(), "Name,Sequence,Charge,Mass,Comment\n"
                                                  "T1,PEPTIDEK,2,927.4549,\n"
                                                  "T2,FTISR,1,622.3439,short\n"
                                                  "T3,,,8559.6167,intact\n");
        ok = written && !editor->start().hasError() && !editor->load(csvPath()).hasError();
    }

    [[nodiscard]] QString trailPath() const { return folder.filePath(u"trail.sqlite"_s); }
    [[nodiscard]] QString csvPath() const { return folder.filePath(u"samples.csv"_s); }

    [[nodiscard]] qint64 idAt(int index) const
    {
        return workbench::SampleTable::idOf(*editor->table().row(index));
    }
    [[nodiscard]] QString cell(int row, const QString &column) const
    {
        return workbench::rules::toText(editor->table().row(row)->getDataAt(column));
    }
    /// All cells, in one text.
    [[nodiscard]] QString samples() const
    {
        QStringList lines;
        for (int row = 0; row < editor->table().rowCount(); ++row) {
            QStringList cells{QString::number(idAt(row))};
            for (const QString &column : workbench::SampleTable::columnsOf(*editor->table().row(row)))
                cells.append(cell(row, column));
            lines.append(cells.join(u'|'));
        }
        return lines.join(u'\n');
    }
    /// The steps of the history, with the place reached in it.
    [[nodiscard]] QString history() const
    {
        QStringList texts{QString::number(editor->history().index())};
        for (int i = 0; i < editor->history().count(); ++i)
            texts.append(editor->history().text(i));
        return texts.join(u'|');
    }
    /// The records of steps and events, as another program sees them.
    [[nodiscard]] QList<ozm::audit::Entry> stored() const
    {
        using ozm::audit::Kind;
        const auto other = workbench::openTrail(trailPath(), {}, {});
        return other ? other.value()
                           ->find({.kinds = {Kind::Command, Kind::Macro, Kind::Event, Kind::Commit}})
                           .valueOr({})
                     : QList<ozm::audit::Entry>();
    }
    /// All but where a session begins or ends.
    [[nodiscard]] QStringList trailTexts() const
    {
        const QStringList texts = textsOf(editor->trail().entries(), QString());
        return texts.filter(QRegularExpression(u"^(?!session: )"_s));
    }

    /// Entries one by one, those below others indented, errors after " ! ".
    [[nodiscard]] static QStringList textsOf(const std::vector<workbench::AuditEntry *> &entries,
                                             const QString &indent)
    {
        QStringList texts;
        for (const workbench::AuditEntry *entry : entries) {
            QString text = indent + entry->text;
            if (entry->isUnfinished())
                text += " (not finished)"_L1;
            if (entry->record.outcomeCode != 0)
                text += " ! "_L1 + entry->record.outcomeText;
            texts += text;
            texts += textsOf(entry->children, indent + "  "_L1);
        }
        return texts;
    }

    QTemporaryDir folder;
    std::unique_ptr<ozm::audit::Store> store;
    std::unique_ptr<workbench::SampleEditor> editor;
    bool ok = false;
};

} // namespace ozm::test
