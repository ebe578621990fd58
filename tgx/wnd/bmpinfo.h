#pragma once

#include "tgx/export.h"

/// Exported for games that derive from it; the toolkit itself does not use it.
class TGX_API ABmpInfo {
public:
    ABmpInfo() = default;
    ABmpInfo(const ABmpInfo&) = default;
    ABmpInfo& operator=(const ABmpInfo&) = default;
    virtual ~ABmpInfo() = default;
};
