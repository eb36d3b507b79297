// Marks the classes of the grid that the module exports to other screens.
#pragma once

#if defined(_WIN32)
#ifdef JOGEON_GRID_EXPORTS
#define FB_GRID_API __declspec(dllexport)
#else
#define FB_GRID_API __declspec(dllimport)
#endif
#else
#define FB_GRID_API __attribute__((visibility("default")))
#endif
