#pragma once

/// The catch of one pot.
struct Catch {
    const char* what;
    int grams;
    int pence; // price at the harbour
};
