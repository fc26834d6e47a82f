#include "ltableproperties.h"

#include <tuple>

namespace LUM_EditInterface {

static auto fields(const LTableProperties &record)
{
    return std::tie(record.rows, record.columns, record.backgroundColor, record.width,
                    record.borderWidth, record.borderColor, record.cellPadding, record.type,
                    record.pageTurnDirection, record.header, record.fixedHeader, record.fillArea);
}

bool operator==(const LTableProperties &left, const LTableProperties &right)
{
    return fields(left) == fields(right);
}

} // namespace LUM_EditInterface
