#pragma once

#include <utility>

/// Replaces the value of a variable for the lifetime of this object and restores the old one at the end.
template<class T>
class Swapped {
public:
    Swapped(T& variable, T value) : target(variable), old(std::exchange(variable, std::move(value))) {}
    ~Swapped() { target = std::move(old); }
    Swapped(const Swapped&) = delete;
    Swapped& operator=(const Swapped&) = delete;

private:
    T& target;
    T old;
};
