#pragma once

#include <QIcon>

class QPalette;

namespace workbench {

/** Small pictures of actions that are drawn, so that they exist without an icon theme. */
enum class Drawing {
    Add,
    Remove,
    Duplicate,
    Edit,
    Refresh,
    Up,
    Down,
    Previous,
    Next,
    Play,
    Pause,
    Stop,
    Close,
    Screen,
    Frame,
    Text,
    Controller,
    Grid,
    Information,
    Warning,
    Error
};

/**
 * The picture in the colours of @p palette, at 16 and 24 pixels and twice that, with a pale version
 * for what is disabled. It does not follow the palette: draw it again when that changes.
 */
[[nodiscard]] QIcon drawnIcon(Drawing drawing, const QPalette &palette);

} // namespace workbench
