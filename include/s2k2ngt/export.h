#ifndef S2K2NGT_EXPORT_H
#define S2K2NGT_EXPORT_H

/* Marks what the shared library offers to hosts. Define S2K2NGT_STATIC to link it statically. */
#if defined(S2K2NGT_STATIC)
#define S2K2NGT_API
#elif defined(_WIN32)
#if defined(S2K2NGT_BUILDING)
#define S2K2NGT_API __declspec(dllexport)
#else
#define S2K2NGT_API __declspec(dllimport)
#endif
#else
#define S2K2NGT_API __attribute__((visibility("default")))
#endif

#endif
