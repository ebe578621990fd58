#pragma once

#include "platform/framework/cstring.h"
#include "platform/framework/znfixed.h"
#include "tgx/export.h"

/// Decimal text. grouped: commas between groups of three digits. ordinal: with "st", "nd", "rd" or "th".
TGX_API CString intToString(int value, int grouped, int ordinal);
/// Two decimals, the sign lost: 12.34. Raw 0 is "  0.0".
TGX_API CString floatToString(ZnFixed value);
/// Up to 60: "45 mins". Above: "2hr 5".
TGX_API CString minutesToString(int minutes);
