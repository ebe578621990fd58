#pragma once

/// Marks what the toolkit exports. Everything else is hidden (-fvisibility=hidden).
#define TGX_API __attribute__((visibility("default")))
