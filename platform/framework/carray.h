#pragma once

#include "platform/framework/exceptions.h"

#include <vector>

/// A growable array that checks every index: an index outside the array raises CInvalidArgException and
/// changes nothing. ARG is the type of the parameters that take an element.
template<class T, class ARG = const T&>
class CArray {
public:
    int GetSize() const { return static_cast<int>(items.size()); }
    int GetCount() const { return GetSize(); }
    int GetUpperBound() const { return GetSize() - 1; }
    bool IsEmpty() const { return items.empty(); }
    /// Resizes the array. New elements are value-initialised. A negative size raises CInvalidArgException.
    void SetSize(int size)
    {
        if (size < 0)
            AfxThrowInvalidArgException();
        items.resize(static_cast<std::size_t>(size));
    }

    const T& GetAt(int index) const { return items[checked(index, GetSize())]; }
    T& ElementAt(int index) { return items[checked(index, GetSize())]; }
    void SetAt(int index, ARG value) { items[checked(index, GetSize())] = value; }
    const T& operator[](int index) const { return GetAt(index); }
    T& operator[](int index) { return ElementAt(index); }
    T* GetData() { return items.data(); }
    const T* GetData() const { return items.data(); }

    /// Appends value and returns its index. Large arrays grow by a quarter.
    int Add(ARG value)
    {
        if (items.size() == items.capacity() && items.size() >= 64)
            items.reserve(items.size() + items.size() / 4);
        items.push_back(value);
        return GetUpperBound();
    }
    /// Inserts value before index, which may equal the size.
    void InsertAt(int index, ARG value)
    {
        items.insert(items.begin() + checked(index, GetSize() + 1), value);
    }
    void RemoveAt(int index, int count = 1)
    {
        if (count < 0 || index < 0 || index > GetSize() - count)
            AfxThrowInvalidArgException();
        items.erase(items.begin() + index, items.begin() + index + count);
    }
    /// Empties the array and frees its storage.
    void RemoveAll() { std::vector<T>().swap(items); }

    auto begin() const { return items.begin(); }
    auto end() const { return items.end(); }

private:
    static std::ptrdiff_t checked(int index, int size)
    {
        if (index < 0 || index >= size)
            AfxThrowInvalidArgException();
        return index;
    }
    std::vector<T> items;
};
