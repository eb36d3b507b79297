# Installs the module, builds the gallery against it and looks at the picture of every page.

include("${CMAKE_CURRENT_LIST_DIR}/build_example.cmake")
build_example(Screen0150)

run("${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen
    "${WORK}/build/fb_grid_gallery" --pictures "${WORK}/pictures")
file(GLOB pages "${SOURCE}/pages/*_page.cpp")
file(GLOB pictures "${WORK}/pictures/grid_*.png")
list(LENGTH pages wanted)
list(LENGTH pictures made)
if(NOT made EQUAL wanted)
    message(FATAL_ERROR "${wanted} pages have given ${made} pictures")
endif()
run("${CHECK}" ${pictures})
