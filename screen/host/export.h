// Marks what the library between module and host exports.
#pragma once

#if defined(_WIN32)
#ifdef screen_host_EXPORTS
#define JOGEON_HOST_API __declspec(dllexport)
#else
#define JOGEON_HOST_API __declspec(dllimport)
#endif
#else
#define JOGEON_HOST_API __attribute__((visibility("default")))
#endif
