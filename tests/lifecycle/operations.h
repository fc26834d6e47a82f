#pragma once

#include "stage.h"

#include <QVector>

#include <functional>

/** Something that a user or a host does. */
struct Operation
{
    QString name;
    Stage::Start start;
    std::function<void(const Stage &)> run;
};

/**
 * Every slot of the editor and of the client, every action, button, list and box, keys, and what
 * hosts do. @p stage is an open one, where they are looked up; each runs on a stage of its own.
 */
[[nodiscard]] QVector<Operation> allOperations(const Stage &stage);
