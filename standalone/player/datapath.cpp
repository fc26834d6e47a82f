#include "datapath.h"

namespace player {

using sources::DataValue;

namespace {

constexpr int MostDigits = 9;
constexpr int LongestPath = 1000; ///< That is written to.

/** Takes "[3]" off the front of @p path; -1 when no index stands there. */
int takeIndex(QStringView *path)
{
    const int end = int(path->indexOf(QLatin1Char(']')));
    if (end < 2 || end > MostDigits + 1) {
        return -1;
    }
    int index = 0;
    for (const QChar c : path->mid(1, end - 1)) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9')) {
            return -1;
        }
        index = 10 * index + c.unicode() - '0';
    }
    *path = path->mid(end + 1);
    return index;
}

/** Takes a name off the front of @p path, and the "." in front of it. */
QString takeName(QStringView *path)
{
    if (path->startsWith(QLatin1Char('.'))) {
        *path = path->mid(1);
    }
    int end = 0;
    while (end < path->size() && path->at(end) != QLatin1Char('.') &&
           path->at(end) != QLatin1Char('[')) {
        ++end;
    }
    const QString name = path->left(end).toString();
    *path = path->mid(end);
    return name;
}

} // namespace

SourceKey SourceKey::fromText(const QString &key)
{
    const int colon = key.indexOf(QLatin1Char(':'));
    return colon < 0 ? SourceKey{QString(), key} : SourceKey{key.left(colon), key.mid(colon + 1)};
}

DataValue valueAt(const DataValue &root, QStringView path, bool *isFound)
{
    DataValue value = root;
    bool isThere = !path.isEmpty();
    while (isThere && !path.isEmpty()) {
        int index = -1;
        if (path.startsWith(QLatin1Char('['))) {
            index = value.kind() == DataValue::Kind::List ? takeIndex(&path) : -1;
        } else if (value.kind() == DataValue::Kind::Record) {
            const int dot = path.startsWith(QLatin1Char('.')) ? 1 : 0;
            index = value.memberIndex(path.mid(dot).toString());
            if (index >= 0) {
                path = {};
            } else {
                index = value.memberIndex(takeName(&path));
            }
        }
        isThere = index >= 0 && index < value.size();
        value = isThere ? value.at(index) : DataValue();
    }
    if (isFound != nullptr) {
        *isFound = isThere;
    }
    return isThere ? value : DataValue();
}

bool setValueAt(DataValue *root, const QString &path, const QString &text)
{
    QStringView rest(path);
    const QString name = takeName(&rest);
    const bool isRecord = root->isMissing() || root->kind() == DataValue::Kind::Record;
    if (!isRecord || path.size() > LongestPath || name.isEmpty() ||
        rest.startsWith(QLatin1Char('['))) {
        return false;
    }
    DataValue value = DataValue::fromText(text);
    if (!rest.isEmpty()) {
        value = root->member(name);
        if (!setValueAt(&value, rest.toString(), text)) {
            return false;
        }
    }
    QVector<DataValue::Member> members;
    for (int i = 0; i < root->size(); ++i) {
        members.append({root->memberName(i), root->at(i)});
    }
    members.append({name, value}); // of two that have one name the later one counts
    *root = DataValue::fromRecord(members);
    return true;
}

DataValue valueOfKey(const sources::DataSnapshot &data, const QString &key,
                     const QString &defaultSource, bool *isFound)
{
    const SourceKey parts = SourceKey::fromText(key);
    return valueAt(data.value(parts.source.isEmpty() ? defaultSource : parts.source).value,
                   parts.path, isFound);
}

} // namespace player
