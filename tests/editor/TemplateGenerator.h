#pragma once

#include <QRandomGenerator>
#include <QString>

/// Templates as people and programs write them: codes in formatted text, scripts, tables, images, lists, and
/// now and then markup that no standard knows.
class TemplateGenerator
{
public:
    explicit TemplateGenerator(quint32 seed)
        : m_random(seed)
    {}

    QString next();
    /// The parts that a template is made of.
    QStringList blocks();

private:
    int below(int bound) { return m_random.bounded(bound); }
    bool chance(int percent) { return below(100) < percent; }
    QString oneOf(std::initializer_list<const char *> choices);

    QStringList blocksWithLines();
    QString word();
    QString code();
    QString script();
    QString image();
    QString inlines(int depth);
    QString block(int depth);
    QString list(int depth);
    QString table(int depth);
    QString hostile();

    QRandomGenerator m_random;
};
