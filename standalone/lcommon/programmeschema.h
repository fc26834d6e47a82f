#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

/** What the objects of a programme file may hold, and whether a value is one that they may. */
namespace ProgrammeSchema {

/** Kinds of values. */
enum Kind { Text, Number, Truth, DeviceKind, Side };

/** A member of an object of the file that is kept as an attribute of its node. */
struct Member
{
    QString key;       ///< In the file.
    QString attribute; ///< On the node.
    Kind kind;
};

/** The members of each kind of node that stand in the file under a name of their own. */
[[nodiscard]] const QVector<Member> &controllerMembers();
[[nodiscard]] const QVector<Member> &frameMembers();
[[nodiscard]] const QVector<Member> &borderMembers(); ///< In the frame's object "border".

/** What is wrong with @p value as one of @p kind, fit for a user; empty when nothing is. */
[[nodiscard]] QString fault(Kind kind, const QJsonValue &value);

/**
 * The same for a node's attribute @p key; attributes that no node knows may hold anything. Null
 * stands for an attribute without a value.
 */
[[nodiscard]] QString attributeFault(const QString &key, const QJsonValue &value);

/**
 * Whether attribute @p key is an empty text that reads as if it were not there. The display text
 * is none: an item without one is new.
 */
[[nodiscard]] bool isBlank(const QString &key, const QVariant &value);

/** Longest side of a screen, a frame or an item in pixels. */
constexpr int LongestSide = 16384;

} // namespace ProgrammeSchema
