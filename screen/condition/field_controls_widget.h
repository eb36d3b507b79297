// The live controls of the parameter panel: makes those of a field by its type, and destroys them.
//
// Owns every control that it makes; a field only borrows them. Controls are children of the panel, named by
// their control id. A field that asks for what can't be shown gets fewer controls or none, and keeps its
// value.
#pragma once

#include <QButtonGroup>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "screen/condition/panel_layout.h"

namespace jogeon {

class PictureControl;
class WidgetControl;

class FieldControlSet {
public:
    // `panel` outlives this object. `pictureFile` gives the path of a pattern picture by its name,
    // in the current theme.
    // `onChoice` is called when the user picks an option of a selector.
    using PictureFile = std::function<std::filesystem::path(const std::string& name)>;
    FieldControlSet(QWidget& panel, PictureFile pictureFile, std::function<void()> onChoice);
    ~FieldControlSet();

    // Makes the controls of a field and sets m_bCreated; nothing is done where they exist. The field lives
    // until its controls are destroyed.
    void CreateControl(CIndexField& field);
    void DestroyControl(CIndexField& field);

    // Greys the controls of a field, or brings them back.
    void SetEnabled(const CIndexField& field, bool enabled);

    // Shows the pictures as they are for the theme now.
    void RefreshPictures();

    // The widgets that take the focus, in the order of their making.
    const std::vector<QWidget*>& TabStops() const { return tabStops_; }

private:
    struct Made {
        std::vector<std::unique_ptr<WidgetControl>> controls;
        std::unique_ptr<QButtonGroup> group;
    };

    template <typename Control, typename WidgetType>
    FieldControl* Add(const CIndexField& field, const PanelRect& rect, WidgetType* widget);
    bool Full() const;
    void MakeControls(CIndexField& field);
    void MakeSpin(CIndexField& field);
    void MakeCombo(CIndexField& field, bool editable);
    void MakeRadios(CIndexField& field);
    void MakePicture(CIndexField& field);
    void LoadPicture(const CIndexField& field, PictureControl& control) const;

    QWidget& panel_;
    const PictureFile pictureFile_;
    const std::function<void()> onChoice_;
    std::map<const CIndexField*, Made> made_;
    std::vector<QWidget*> tabStops_;
    std::size_t count_ = 0;
};

}  // namespace jogeon
