#pragma once

#include "platform/framework/cstring.h"
#include "platform/framework/znfixed.h"
#include "tgx/export.h"

/// Returns value in decimal. grouped adds commas between groups of three digits, ordinal appends "st", "nd",
/// "rd" or "th".
TGX_API CString intToString(int value, int grouped, int ordinal);
// / Returns value with two decimals and without its sign, such as "12.34"; " 0.0" if its raw value is 0.
TGX_API CString floatToString(ZnFixed value);
/// Returns a text such as "45 mins", or above 60 minutes "2hr 5".
TGX_API CString minutesToString(int minutes);
