#include "lframe.h"

#include <QSharedData>

#include <tuple>

class LFrameData : public QSharedData
{
public:
    bool enable = false;
    int type = 1;
    int effect = 0;
    int speed = 0;
};

static auto fields(const LFrameData &data)
{
    return std::tie(data.enable, data.type, data.effect, data.speed);
}

LFrame::LFrame()
    : d(new LFrameData)
{}

LFrame::LFrame(const LFrame &other) = default;
LFrame &LFrame::operator=(const LFrame &other) = default;
LFrame::~LFrame() = default;

bool LFrame::Enable() const
{
    return d->enable;
}

void LFrame::SetEnable(bool value)
{
    d->enable = value;
}

int LFrame::FrameType() const
{
    return d->type;
}

void LFrame::SetFrameType(int value)
{
    d->type = value;
}

int LFrame::Effect() const
{
    return d->effect;
}

void LFrame::SetEffect(int value)
{
    d->effect = value;
}

int LFrame::Speed() const
{
    return d->speed;
}

void LFrame::SetSpeed(int value)
{
    d->speed = value;
}

QString LFrame::Type2Image(int type)
{
    constexpr int perFamily = 6;
    static const QString families = QStringLiteral("PMT");
    if (type < 1 || type > perFamily * families.size()) {
        return QString();
    }
    return QStringLiteral(":/images/%1%2.png")
        .arg(families.at((type - 1) / perFamily))
        .arg((type - 1) % perFamily + 1, 2, 10, QLatin1Char('0'));
}

bool LFrame::operator==(const LFrame &other) const
{
    return fields(*d) == fields(*other.d);
}
