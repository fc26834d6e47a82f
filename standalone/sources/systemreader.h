#pragma once

#include "sourcereader.h"

namespace sources {

/** The clock and what the system knows of itself, each second on the second. */
class SystemReader : public SourceReader
{
    Q_OBJECT

public:
    using SourceReader::SourceReader;

    void read() override;
    [[nodiscard]] int nextInterval() const override;
    [[nodiscard]] bool isKept() const override { return false; }

private:
    qint64 m_ticks = 0;
};

} // namespace sources
