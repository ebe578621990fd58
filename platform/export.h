#pragma once

/// Marks what the platform library exports. Everything else is hidden (-fvisibility=hidden).
#define TGX_PLATFORM_API __attribute__((visibility("default")))
