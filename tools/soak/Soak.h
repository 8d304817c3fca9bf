#pragma once

#include "Dialogs.h"
#include "Meter.h"
#include "Session.h"
#include "Toolkit.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>

namespace soak {

struct Options
{
    unsigned seed = 1;
    double minutes = 60;
    int firstSession = 1;
    bool isVerbose = false; ///< Each action is named before it is done.
    QString only;           ///< The one action that is done, or empty for all.
    PixmapCache pixmaps = PixmapCache::Off;
    QString csv;
};

/// Runs session after session, an action at a turn of the event loop, until the time is over, and then ends the
/// application: with 0 when nothing grew and nothing was wrong.
class Soak : public QObject
{
public:
    explicit Soak(const Options &options);
    ~Soak() override;

    void start();

private:
    void step();
    void begin();
    void end();
    void finish();
    void look();
    [[nodiscard]] Reading reading(bool isIdle) const;

    const Options m_options;
    Dialogs m_dialogs;
    QString m_file;
    Meter m_meter;
    std::unique_ptr<Session> m_session;
    QTimer m_next;
    QTimer m_watch;
    QElapsedTimer m_clock;
    QString m_doing;
    int m_number;
    int m_turnsIdle = 0;
    qint64 m_actions = 0;
    qint64 m_inSession = 0;
    qint64 m_actionsSeen = 0;
    qint64 m_lastReading = 0;
    qint64 m_progress = 0;
    QStringList m_wrong;
};

} // namespace soak
