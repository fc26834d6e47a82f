#pragma once

#include "programmefile.h"

#include <QJsonObject>

class LNode;
class LTextEffectNode;

/**
 * Makes nodes of the objects of a programme file. The first fault ends it; what was made until then
 * is thrown away.
 */
class ProgrammeReader
{
public:
    explicit ProgrammeReader(const QByteArray &bytes)
        : m_bytes(bytes)
    {}

    [[nodiscard]] ReadProgramme read();

private:
    bool readHead(const QJsonObject &programme);
    bool readController(const QJsonObject &programme, LControllerNode *controller);
    bool readScreen(const QJsonObject &object, const JsonPath &path, LNode *parent);
    bool readFrame(const QJsonObject &object, const JsonPath &path, LNode *parent);
    bool readItem(const QJsonObject &object, const JsonPath &path, LNode *parent);
    bool readName(QJsonObject *rest, const JsonPath &path, LNode *node, const QString &fallback);
    bool readDocument(QJsonObject *rest, const JsonPath &path, LTextEffectNode *item);
    bool readAttributes(QJsonObject *rest, const JsonPath &path, LNode *node);

    /** Takes the members listed out of @p rest and puts them on the node. */
    template <typename Members>
    bool readMembers(const Members &members, QJsonObject *rest, const JsonPath &path, LNode *node);
    /** Takes the array @p key out of @p rest and reads each of its objects. */
    template <typename Read>
    bool readChildren(const QString &key, QJsonObject *rest, const JsonPath &path, Read read);
    /** Takes the object @p key out of @p rest; an absent one is empty. */
    bool takeObject(const QString &key, QJsonObject *rest, const JsonPath &path,
                    QJsonObject *object);

    bool fail(const JsonPath &path, const QString &reason, const QString &remedy);

    const QByteArray m_bytes;
    ProgrammeError m_error;
};
