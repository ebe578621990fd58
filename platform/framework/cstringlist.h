#pragma once

#include "platform/framework/carray.h"
#include "platform/framework/cstring.h"

/// A list of strings, in order. Indexes are checked as in CArray.
class CStringList {
public:
    int GetCount() const { return items.GetSize(); }
    bool IsEmpty() const { return items.IsEmpty(); }
    void AddTail(const CString& text) { items.Add(text); }
    void AddHead(const CString& text) { items.InsertAt(0, text); }
    const CString& GetAt(int index) const { return items.GetAt(index); }
    void SetAt(int index, const CString& text) { items.SetAt(index, text); }
    void RemoveAt(int index) { items.RemoveAt(index); }
    void RemoveAll() { items.RemoveAll(); }

    auto begin() const { return items.begin(); }
    auto end() const { return items.end(); }

private:
    CArray<CString> items;
};
