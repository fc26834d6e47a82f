#pragma once

#include <QPalette>
#include <QString>

namespace workbench {

/** Which colours the program wears. */
enum class PaletteChoice { System, Light, Dark };

/** The choice named "system", "light" or "dark"; System for any other name. */
[[nodiscard]] PaletteChoice paletteFromName(const QString &name);
/** "system", "light" or "dark". */
[[nodiscard]] QString paletteName(PaletteChoice choice);

/** The colours of a choice, complete for all groups; System gives an empty palette. */
[[nodiscard]] QPalette paletteOf(PaletteChoice choice);

/** Puts the choice on the running application; System is what the desktop says. */
void applyPalette(PaletteChoice choice);

} // namespace workbench
