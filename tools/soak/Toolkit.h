#pragma once

#include <QStringList>

namespace soak {

/**
 * How the toolkit's cache of pixmaps is treated. That of Qt 6.4 keeps for ever the name of each pixmap that it dropped,
 * some 200 bytes, and a name is new for each new palette and for each icon that a file dialog makes itself. No program
 * gets at these names, so that a run goes without the cache: what grows then is the workbench's.
 */
enum class PixmapCache
{
    Off,
    On
};

/**
 * A line for each of some things that bare widgets of the toolkit do: how much of the heap each time takes for good,
 * with the cache of pixmaps and without. It is measured here and now, before the library's style is applied. Empty
 * where the system does not tell of the heap.
 */
[[nodiscard]] QStringList toolkitLosses();

void useCache(PixmapCache cache);

/// Has the toolkit let go of what it keeps for widgets that are gone, which is not the workbench's to free.
void emptyToolkitCaches();

} // namespace soak
