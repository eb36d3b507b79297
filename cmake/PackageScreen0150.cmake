# Installs the module for other screens that use its grid: find_package(Screen0150), jogeon::screen0150.
#
# The library that the module shares with its host comes along; each finds the other in its own folder.
#   cmake --install <build folder> --component Screen0150 --prefix <folder>

include(CMakePackageConfigHelpers)
set(SCREEN0150_PACKAGE "${CMAKE_INSTALL_LIBDIR}/cmake/Screen0150")

target_include_directories(screen0150 INTERFACE "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/jogeon>")
target_link_libraries(screen0150 INTERFACE Qt6::Widgets)
target_compile_features(screen0150 INTERFACE cxx_std_20)
set_target_properties(screen0150 screen_host PROPERTIES INSTALL_RPATH "\$ORIGIN")

install(TARGETS screen0150 screen_host EXPORT Screen0150Targets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Screen0150
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT Screen0150
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Screen0150)
# The header of the grid and those that it needs; the module's other headers are its own affair.
foreach(header fb_axis fb_cell fb_export fb_grid_data fb_grid_geometry fb_grid_widget)
    install(FILES "${PROJECT_SOURCE_DIR}/screen/fbgrid/${header}.h"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/jogeon/screen/fbgrid" COMPONENT Screen0150)
endforeach()

install(EXPORT Screen0150Targets NAMESPACE jogeon:: DESTINATION "${SCREEN0150_PACKAGE}" COMPONENT Screen0150)
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/Screen0150Config.cmake.in"
    "${PROJECT_BINARY_DIR}/Screen0150Config.cmake" INSTALL_DESTINATION "${SCREEN0150_PACKAGE}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/Screen0150ConfigVersion.cmake"
    VERSION "${PROJECT_VERSION}" COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/Screen0150Config.cmake" "${PROJECT_BINARY_DIR}/Screen0150ConfigVersion.cmake"
    DESTINATION "${SCREEN0150_PACKAGE}" COMPONENT Screen0150)
