#pragma once

/// What one pot brought up.
struct Catch {
    const char* what;
    int grams;
    int pence; // at the harbour
};
