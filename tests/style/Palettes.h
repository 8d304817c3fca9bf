#pragma once

#include <ozm_widgets/OZMStyle.h>

#include <utility>

namespace ozm::test {

/// The palettes that all is to be seen on, with names for files; the last as systems have it for people who see little.
inline QList<std::pair<QString, QPalette>> palettes()
{
    QPalette contrast(Qt::white, Qt::black, Qt::white, Qt::black, Qt::gray, Qt::white, Qt::white, Qt::black,
                      Qt::black);
    contrast.setColor(QPalette::Link, Qt::yellow);
    contrast.setColor(QPalette::Highlight, Qt::cyan);
    contrast.setColor(QPalette::HighlightedText, Qt::black);
    return {{QStringLiteral("light"), OZMStyle::palette(OZMStyle::Scheme::Light)},
            {QStringLiteral("dark"), OZMStyle::palette(OZMStyle::Scheme::Dark)},
            {QStringLiteral("contrast"), contrast}};
}

} // namespace ozm::test
