# Which files make a target: the file's folder and name decide, so that adding one needs no list.
#
# A widget says so by its name; everything else under screen/ is logic that is built without Qt.

set(JOGEON_WIDGET_FILES "_(dialog|pane|view|edit|widget|qt)\\.(cpp|h)$")

# Sets `out` to the C++ files under the folders that follow, searched in depth.
function(jogeon_sources out)
    set(patterns "")
    foreach(folder IN LISTS ARGN)
        list(APPEND patterns "${folder}/*.cpp" "${folder}/*.h")
    endforeach()
    file(GLOB_RECURSE files CONFIGURE_DEPENDS ${patterns})
    set(${out} "${files}" PARENT_SCOPE)
endfunction()
