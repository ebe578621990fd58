#pragma once

#include <utility>

/// Puts another value into a variable for as long as the object lives, and the old one back however the block
/// is left.
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
