#pragma once

/// \file
/// KVOPT_EXPORT marks what a host may use; everything else stays hidden in its library.

#if defined(_WIN32)
#if defined(KVOPT_BUILDING) || defined(KVOPT_HOST_BUILDING) || defined(KVOPT_SCRIPTED_BUILDING) || \
    defined(KVOPT_QT_BUILDING)
#define KVOPT_EXPORT __declspec(dllexport)
#else
#define KVOPT_EXPORT __declspec(dllimport)
#endif
#else
#define KVOPT_EXPORT __attribute__((visibility("default")))
#endif
