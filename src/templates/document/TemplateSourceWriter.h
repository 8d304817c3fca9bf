#pragma once

#include <QDeadlineTimer>
#include <QList>
#include <QString>

#include <memory>

class QTextDocument;

namespace ozm::editor {

/// Where a chip is, in the source and in the document that it was written from.
struct ChipPlace
{
    qsizetype start = 0;
    qsizetype end = 0;
    int position = 0;
};

/// A line of the document: its own tag, what stands in it, and what ends it.
struct WrittenLine
{
    int run = -1; ///< The run of the source that it was read from; -1 for a new one.
    int position = 0;
    qsizetype start = 0;
    qsizetype innerStart = 0;
    qsizetype innerEnd = 0;
    qsizetype end = 0;
};

/// A part of the document that stands by itself: a paragraph, a table, a list.
struct WrittenItem
{
    /// A tag of a table or list, or a line.
    struct Step
    {
        QString tag;
        int line = -1;
    };

    qsizetype start = 0;
    qsizetype end = 0;
    QList<Step> steps;
};

struct WrittenSource
{
    QString text;
    QList<ChipPlace> chips; ///< In order of both.
    QList<WrittenLine> lines;
    QList<WrittenItem> items;
};

/**
 * Writes a document as the source of a template: short HTML that says only what differs from the defaults,
 * with codes, scripts and kept markup to the letter. What is written, read, and written again is the same.
 */
[[nodiscard]] WrittenSource writeSource(const QTextDocument &document);

/// writeSource() in pieces, for who has other things to do in between. No edit may come between them.
class SourceWriting
{
public:
    explicit SourceWriting(const QTextDocument &document);
    ~SourceWriting();
    Q_DISABLE_COPY_MOVE(SourceWriting)

    /// Writes until @p deadline, but at least something; true when all is written.
    [[nodiscard]] bool goOn(const QDeadlineTimer &deadline);
    /// All of it, once.
    [[nodiscard]] WrittenSource take();

private:
    class Writer;
    const std::unique_ptr<Writer> m_writer;
};

} // namespace ozm::editor
