// The controls of the form as the layouts move them.
#pragma once

#include "screen/condition/bbox_panel_pane.h"
#include "screen/shell/screen_form_widget.h"
#include "screen/shell/screen_layout.h"

namespace jogeon {

class FormWindows final : public LayoutWindows {
public:
    // Form and panel outlive this object.
    FormWindows(ScreenForm& form, const BBoxPanel& panel) : form_(form), panel_(panel) {}

    ControlPlace Place(int id) const override {
        const QRect rect = form_.At(id).geometry();
        return {rect.left(), rect.top(), rect.width(), rect.height()};
    }
    void Move(int id, const ControlPlace& place) override {
        form_.At(id).setGeometry(place.left, place.top, place.width, place.height);
    }
    void Show(int id, bool shown) override { form_.At(id).setVisible(shown); }
    void SetCaption(int id, const char* caption) override {
        form_.ButtonAt(id).setText(QString::fromUtf8(caption));
    }
    bool PanelHolds() const override { return panel_.Current() != nullptr; }

private:
    ScreenForm& form_;
    const BBoxPanel& panel_;
};

}  // namespace jogeon
