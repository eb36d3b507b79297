# Installs the section-and-key file class for other projects: find_package(IniMemFile), jogeon::inimemfile.
#
# It is a component of its own, so that it can be had without the programs and without Qt:
#   cmake --install <build folder> --component IniMemFile --prefix <folder>

include(CMakePackageConfigHelpers)
set(INIMEMFILE_PACKAGE "${CMAKE_INSTALL_LIBDIR}/cmake/IniMemFile")

install(TARGETS inimemfile EXPORT IniMemFileTargets
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT IniMemFile)
install(FILES "${PROJECT_SOURCE_DIR}/screen/files/ini_mem_file.h"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/jogeon" COMPONENT IniMemFile)

# The library needs no other package, so the list of its targets is all of its configuration.
install(EXPORT IniMemFileTargets NAMESPACE jogeon:: FILE IniMemFileConfig.cmake
    DESTINATION "${INIMEMFILE_PACKAGE}" COMPONENT IniMemFile)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/IniMemFileConfigVersion.cmake"
    VERSION "${PROJECT_VERSION}" COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/IniMemFileConfigVersion.cmake"
    DESTINATION "${INIMEMFILE_PACKAGE}" COMPONENT IniMemFile)
