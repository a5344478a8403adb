#pragma once

/// Major version of the library, for conditional compilation.
#define GEOMETRY_VERSION_MAJOR 1

/// The library's version as text, callable from C.
extern "C" const char* geometry_version();
