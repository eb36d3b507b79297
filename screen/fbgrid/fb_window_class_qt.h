// Names of window classes, by which an in-place list knows the windows that close it.
//
// A widget says its class by the dynamic property "windowClass"; Qt's plain controls are known without it.
#pragma once

#include <QWidget>

namespace jogeon {

inline constexpr char kWindowClassProperty[] = "windowClass";
inline constexpr char kGridWindowClass[] = "FBGrid";

// Whether an in-place list closes when the keyboard focus moves to this window.
bool EndsInPlaceList(const QWidget& focus);

}  // namespace jogeon
