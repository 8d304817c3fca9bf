#pragma once

#include "audit/AuditDatabase.h"
#include "samples/SampleEditor.h"
#include "samples/SampleRules.h"
#include "support/Files.h"

#include <ozm_common_core_mini/ColumnNames.h>

#include <QTemporaryDir>

#include <memory>

namespace ozm::test {

using namespace Qt::StringLiterals;

/// An editor with three samples, on an audit trail in a folder of its own.
struct SampleFixture
{
    SampleFixture()
    {
        auto opened = workbench::AuditDatabase::open(databasePath());
        if (!opened)
            return;
        database = std::move(opened).value();
        editor = std::make_unique<workbench::SampleEditor>(*database, u"jdoe"_s);
        const bool written = writeFile(csvPath(), "Name,Sequence,Charge,Mass,Comment\n"
                                                  "T1,PEPTIDEK,2,927.4549,\n"
                                                  "T2,FTISR,1,622.3439,short\n"
                                                  "T3,,,8559.6167,intact\n");
        ok = written && !editor->start().hasError() && !editor->load(csvPath()).hasError();
    }

    [[nodiscard]] QString databasePath() const { return folder.filePath(u"audit.sqlite"_s); }
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
    /// The records on the disk, as another program sees them.
    [[nodiscard]] QList<workbench::AuditRecord> stored() const
    {
        auto other = workbench::AuditDatabase::open(databasePath());
        return other ? other.value()->recordsAfter(0).valueOr({}) : QList<workbench::AuditRecord>();
    }
    [[nodiscard]] QStringList trailTexts() const { return textsOf(editor->trail().entries(), QString()); }

    /// Entries one by one, those below others indented, errors after " ! ".
    [[nodiscard]] static QStringList textsOf(const std::vector<workbench::AuditEntry *> &entries,
                                             const QString &indent)
    {
        QStringList texts;
        for (const workbench::AuditEntry *entry : entries) {
            QString text = indent + entry->text;
            if (entry->isUnfinished())
                text += " (not finished)"_L1;
            if (entry->record.outcome.hasError())
                text += " ! "_L1 + entry->record.outcome.errorMessage();
            texts += text;
            texts += textsOf(entry->children, indent + "  "_L1);
        }
        return texts;
    }

    QTemporaryDir folder;
    std::unique_ptr<workbench::AuditDatabase> database;
    std::unique_ptr<workbench::SampleEditor> editor;
    bool ok = false;
};

} // namespace ozm::test
