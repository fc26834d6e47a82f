#pragma once

#include "lnode.h"

/** The controller that drives the screens: the root of a programme. */
class LCOMMON_EXPORT LControllerNode : public LNode
{
    Q_OBJECT

public:
    explicit LControllerNode(LNode *parent = nullptr);
    ~LControllerNode() override;

    /** "Controller". */
    [[nodiscard]] QString TypeText() const override;
    /** The type text of a screen. */
    [[nodiscard]] QString ChildType() const override;

    /** Kind of display, "LED" (default) or "LCD". */
    [[nodiscard]] QString GetDeviceKind() const;
    void SetDeviceKind(const QString &value);

    /** Model name of the controller; empty when unknown. */
    [[nodiscard]] QString GetDeviceModel() const;
    void SetDeviceModel(const QString &value);

    /** Whether the device draws text over a transparent ground; false by default. */
    [[nodiscard]] bool GetTextTransparent() const;
    void SetTextTransparent(bool value);
};
