#include "palettes.h"

#include <QApplication>
#include <QToolTip>

namespace workbench {

namespace {

/** The few colours that a palette is made of. */
struct Tones
{
    QColor window, text, base, alternate, button, highlight, highlightedText;
    QColor link, visited, toolTip, toolTipText, dim;
    QColor light, midlight, mid, dark, shadow;
};

const Tones &lightTones()
{
    static const Tones tones{QColor(0xf0f1f3), QColor(0x1e2329), QColor(0xffffff), QColor(0xf6f7f9),
                             QColor(0xf0f1f3), QColor(0x2b6cc4), QColor(0xffffff), QColor(0x1a5fb4),
                             QColor(0x6b4fa0), QColor(0xfffbe6), QColor(0x1e2329), QColor(0x9aa0a8),
                             QColor(0xffffff), QColor(0xe4e6ea), QColor(0xb9bdc4), QColor(0x9ea3ab),
                             QColor(0x6d7178)};
    return tones;
}

const Tones &darkTones()
{
    static const Tones tones{QColor(0x2b2e33), QColor(0xe6e8eb), QColor(0x1f2226), QColor(0x26292e),
                             QColor(0x373b41), QColor(0x3d7edb), QColor(0xffffff), QColor(0x79b0ff),
                             QColor(0xb99cf0), QColor(0x3c4148), QColor(0xf0f1f3), QColor(0x7d838b),
                             QColor(0x4a4f57), QColor(0x40454c), QColor(0x23262a), QColor(0x1a1c1f),
                             QColor(0x0e0f11)};
    return tones;
}

QPalette paletteFrom(const Tones &tones)
{
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, const QColor &color) {
        palette.setColor(QPalette::All, role, color);
    };
    set(QPalette::Window, tones.window);
    set(QPalette::WindowText, tones.text);
    set(QPalette::Base, tones.base);
    set(QPalette::AlternateBase, tones.alternate);
    set(QPalette::Text, tones.text);
    set(QPalette::Button, tones.button);
    set(QPalette::ButtonText, tones.text);
    set(QPalette::BrightText, QColor(0xffffff));
    set(QPalette::Highlight, tones.highlight);
    set(QPalette::HighlightedText, tones.highlightedText);
    set(QPalette::Link, tones.link);
    set(QPalette::LinkVisited, tones.visited);
    set(QPalette::ToolTipBase, tones.toolTip);
    set(QPalette::ToolTipText, tones.toolTipText);
    set(QPalette::PlaceholderText, tones.dim);
    set(QPalette::Light, tones.light);
    set(QPalette::Midlight, tones.midlight);
    set(QPalette::Mid, tones.mid);
    set(QPalette::Dark, tones.dark);
    set(QPalette::Shadow, tones.shadow);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText,
          QPalette::Link, QPalette::LinkVisited, QPalette::PlaceholderText}) {
        palette.setColor(QPalette::Disabled, role, tones.dim);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, tones.window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, tones.mid);
    return palette;
}

} // namespace

PaletteChoice paletteFromName(const QString &name)
{
    if (name == QLatin1String("light")) {
        return PaletteChoice::Light;
    }
    return name == QLatin1String("dark") ? PaletteChoice::Dark : PaletteChoice::System;
}

QString paletteName(PaletteChoice choice)
{
    switch (choice) {
    case PaletteChoice::Light:
        return QStringLiteral("light");
    case PaletteChoice::Dark:
        return QStringLiteral("dark");
    case PaletteChoice::System:
        break;
    }
    return QStringLiteral("system");
}

QPalette paletteOf(PaletteChoice choice)
{
    switch (choice) {
    case PaletteChoice::Light:
        return paletteFrom(lightTones());
    case PaletteChoice::Dark:
        return paletteFrom(darkTones());
    case PaletteChoice::System:
        break;
    }
    return {};
}

void applyPalette(PaletteChoice choice)
{
    QApplication::setPalette(paletteOf(choice));
    // Tool tips keep a palette of their own from the first time they are shown.
    QToolTip::setPalette(QApplication::palette());
}

} // namespace workbench
