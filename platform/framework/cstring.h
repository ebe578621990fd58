#pragma once

#include "platform/export.h"

#include <string>
#include <string_view>

/// A counted string of 8-bit characters (code page 1252). It may contain any byte, including 0; the character
/// pointer shows it up to the first 0.
class TGX_PLATFORM_API CString {
public:
    CString() = default;
    /// Null counts as empty.
    CString(const char* text) : characters(text ? text : "") {}
    CString(const char* text, int length) : characters(text, static_cast<std::size_t>(length)) {}
    CString(std::string text) : characters(std::move(text)) {}
    CString(std::string_view text) : characters(text) {}

    operator const char*() const { return characters.c_str(); }
    std::string_view view() const { return characters; }
    const std::string& str() const { return characters; }
    /// Returns the writable buffer. Valid until the string changes.
    char* GetBuffer() { return characters.data(); }

    int GetLength() const { return static_cast<int>(characters.size()); }
    bool IsEmpty() const { return characters.empty(); }
    void Empty() { characters.clear(); }
    /// Copies text, reusing the current storage if it is large enough.
    void assign(std::string_view text) { characters.assign(text); }
    /// Returns the character at index. An index outside the string raises CInvalidArgException.
    char GetAt(int index) const;
    void SetAt(int index, char value);
    char operator[](int index) const { return GetAt(index); }

    /// Compares byte by byte. Returns a value below 0, 0, or above 0.
    int Compare(const CString& other) const { return characters.compare(other.characters); }
    /// Compares like Compare, but ignores the case of the letters A to Z.
    int CompareNoCase(const CString& other) const { return compareNoCase(view(), other.view()); }
    static int compareNoCase(std::string_view a, std::string_view b);
    static bool equalNoCase(std::string_view a, std::string_view b);

    /// Left, Right and Mid return a part of the string. Counts and starts outside the string are limited to
    /// it.
    CString Left(int count) const;
    CString Right(int count) const;
    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    /// Returns the index of the first occurrence at or after start, or -1.
    int Find(char what, int start = 0) const;
    int Find(const char* what, int start = 0) const;
    int ReverseFind(char what) const;
    /// MakeLower and MakeUpper convert the letters A to Z only.
    CString& MakeLower();
    CString& MakeUpper();
    /// Replaces the string with text formatted as by printf.
    void Format(const char* format, ...) __attribute__((format(printf, 2, 3)));

    CString& operator+=(const CString& other)
    {
        characters += other.characters;
        return *this;
    }
    CString& operator+=(const char* other)
    {
        characters += other ? other : "";
        return *this;
    }
    CString& operator+=(char c)
    {
        characters += c;
        return *this;
    }

    friend CString operator+(const CString& a, const CString& b)
    {
        return CString(a.characters + b.characters);
    }
    friend CString operator+(const CString& a, const char* b) { return a + CString(b); }
    friend CString operator+(const char* a, const CString& b) { return CString(a) + b; }
    friend bool operator==(const CString& a, const CString& b) { return a.characters == b.characters; }
    friend bool operator==(const CString& a, const char* b) { return a.characters == (b ? b : ""); }
    friend bool operator<(const CString& a, const CString& b) { return a.characters < b.characters; }

private:
    std::string characters;
};
