#include "style/StylePalette.h"

#include <array>

namespace ozm {

namespace {

struct RoleRow
{
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};

constexpr std::array kRoles{
    RoleRow{QPalette::Window, 0xfff3f4f5, 0xff2b2d30},
    RoleRow{QPalette::WindowText, 0xff1f2328, 0xffe3e5e8},
    RoleRow{QPalette::Base, 0xffffffff, 0xff1f2123},
    RoleRow{QPalette::AlternateBase, 0xfff4f6f8, 0xff27292c},
    RoleRow{QPalette::Text, 0xff1f2328, 0xffe3e5e8},
    RoleRow{QPalette::PlaceholderText, 0xff6b7279, 0xff9a9fa5},
    RoleRow{QPalette::Button, 0xffeceef0, 0xff383b3f},
    RoleRow{QPalette::ButtonText, 0xff1f2328, 0xffe3e5e8},
    RoleRow{QPalette::BrightText, 0xffffffff, 0xffffffff},
    RoleRow{QPalette::Highlight, 0xff2a6fb8, 0xff3778bc},
    RoleRow{QPalette::HighlightedText, 0xffffffff, 0xffffffff},
    RoleRow{QPalette::ToolTipBase, 0xffffffff, 0xff383b3f},
    RoleRow{QPalette::ToolTipText, 0xff1f2328, 0xffe3e5e8},
    RoleRow{QPalette::Link, 0xff1f62ad, 0xff7db4f0},
    RoleRow{QPalette::LinkVisited, 0xff6b4a9c, 0xffb79be0},
    RoleRow{QPalette::Light, 0xffffffff, 0xff4a4e53},
    RoleRow{QPalette::Midlight, 0xffe2e5e8, 0xff404449},
    RoleRow{QPalette::Mid, 0xffc3c8cd, 0xff55595f},
    RoleRow{QPalette::Dark, 0xff9aa0a6, 0xff1a1b1d},
    RoleRow{QPalette::Shadow, 0xff6f757b, 0xff0e0f10},
};

constexpr std::array kDisabledRoles{
    RoleRow{QPalette::WindowText, 0xff767c82, 0xff8f949a},
    RoleRow{QPalette::Text, 0xff767c82, 0xff8f949a},
    RoleRow{QPalette::ButtonText, 0xff767c82, 0xff8f949a},
    RoleRow{QPalette::Highlight, 0xffc3c8cd, 0xff4a4e53},
    RoleRow{QPalette::HighlightedText, 0xff5d6369, 0xffa3a8ae},
};

} // namespace

QPalette stylePalette(bool dark)
{
    QPalette palette;
    for (const RoleRow &row : kRoles)
        palette.setColor(row.role, QColor::fromRgb(dark ? row.dark : row.light));
    for (const RoleRow &row : kDisabledRoles)
        palette.setColor(QPalette::Disabled, row.role, QColor::fromRgb(dark ? row.dark : row.light));
    return palette;
}

} // namespace ozm
