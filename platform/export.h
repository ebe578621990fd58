#pragma once

/// Marks the classes and functions that the platform library exports. All others are hidden
/// (-fvisibility=hidden).
#define TGX_PLATFORM_API __attribute__((visibility("default")))
