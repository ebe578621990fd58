#pragma once

#include "platform/export.h"

#include <exception>

/// Thrown for an invalid argument, above all an index outside a CArray.
class TGX_PLATFORM_API CInvalidArgException : public std::exception {
public:
    const char* what() const noexcept override { return "invalid argument"; }
};

/// Throws CInvalidArgException.
[[noreturn]] TGX_PLATFORM_API void AfxThrowInvalidArgException();
