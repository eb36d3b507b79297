# The library that writes .xlsx files, as XlsxWriter::XlsxWriter. It brings no configuration for CMake itself.

find_path(XLSXWRITER_INCLUDE_DIR xlsxwriter.h)
find_library(XLSXWRITER_LIBRARY xlsxwriter)
if(XLSXWRITER_INCLUDE_DIR)
    file(STRINGS "${XLSXWRITER_INCLUDE_DIR}/xlsxwriter.h" version_line REGEX "#define LXW_VERSION \"")
    string(REGEX MATCH "[0-9.]+" XlsxWriter_VERSION "${version_line}")
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(XlsxWriter
    REQUIRED_VARS XLSXWRITER_LIBRARY XLSXWRITER_INCLUDE_DIR VERSION_VAR XlsxWriter_VERSION)
mark_as_advanced(XLSXWRITER_INCLUDE_DIR XLSXWRITER_LIBRARY)

if(XlsxWriter_FOUND AND NOT TARGET XlsxWriter::XlsxWriter)
    add_library(XlsxWriter::XlsxWriter UNKNOWN IMPORTED)
    set_target_properties(XlsxWriter::XlsxWriter PROPERTIES
        IMPORTED_LOCATION "${XLSXWRITER_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${XLSXWRITER_INCLUDE_DIR}")
endif()
