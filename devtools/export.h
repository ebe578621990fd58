#pragma once

/// Marks what the devtools library exports. Everything else is hidden (-fvisibility=hidden).
#define TGX_DEVTOOLS_API __attribute__((visibility("default")))
