#pragma once

/// Marks what the devtools library exports. All other symbols are hidden (-fvisibility=hidden).
#define TGX_DEVTOOLS_API __attribute__((visibility("default")))
