#pragma once

#include <QString>

class QWidget;

namespace lctrlsex {

/** Makes a child of @p parent that is found by its object name. */
template <typename Widget>
[[nodiscard]] Widget *make(const QString &name, QWidget *parent)
{
    auto *const widget = new Widget(parent);
    widget->setObjectName(name);
    return widget;
}

} // namespace lctrlsex
