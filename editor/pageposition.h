#pragma once

namespace lctrlsex {

/** Which page of how many is shown; both from 1 once they were clamped. */
struct PagePosition
{
    unsigned page = 1;
    unsigned count = 0; ///< 0 until it is known.

    [[nodiscard]] bool operator==(const PagePosition &other) const
    {
        return page == other.page && count == other.count;
    }
};

/** The position that is asked for, with a count of at least 1 and a page from 1 to the count. */
[[nodiscard]] constexpr PagePosition clamped(PagePosition asked)
{
    const unsigned count = asked.count < 1 ? 1 : asked.count;
    const unsigned page = asked.page < 1 ? 1 : asked.page;
    return {page > count ? count : page, count};
}

} // namespace lctrlsex
