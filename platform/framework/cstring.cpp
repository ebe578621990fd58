#include "platform/framework/cstring.h"

#include "platform/framework/exceptions.h"
#include "platform/framework/text.h"

#include <algorithm>
#include <cstdarg>

namespace {

char uppercased(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c;
}

std::size_t clamped(int count, std::size_t length)
{
    return count < 0 ? 0 : std::min(static_cast<std::size_t>(count), length);
}

int indexOrNone(std::size_t found)
{
    return found == std::string::npos ? -1 : static_cast<int>(found);
}

} // namespace

char CString::GetAt(int index) const
{
    if (index < 0 || index >= GetLength())
        AfxThrowInvalidArgException();
    return characters[static_cast<std::size_t>(index)];
}

void CString::SetAt(int index, char value)
{
    if (index < 0 || index >= GetLength())
        AfxThrowInvalidArgException();
    characters[static_cast<std::size_t>(index)] = value;
}

int CString::compareNoCase(std::string_view a, std::string_view b)
{
    const std::size_t shared = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < shared; ++i) {
        const auto left = static_cast<unsigned char>(tgx::lowercased(a[i]));
        const auto right = static_cast<unsigned char>(tgx::lowercased(b[i]));
        if (left != right)
            return left < right ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

bool CString::equalNoCase(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && compareNoCase(a, b) == 0;
}

CString CString::Left(int count) const
{
    return view().substr(0, clamped(count, characters.size()));
}

CString CString::Right(int count) const
{
    return view().substr(characters.size() - clamped(count, characters.size()));
}

CString CString::Mid(int first) const
{
    return view().substr(clamped(first, characters.size()));
}

CString CString::Mid(int first, int count) const
{
    const std::size_t start = clamped(first, characters.size());
    return view().substr(start, clamped(count, characters.size() - start));
}

int CString::Find(char what, int start) const
{
    return indexOrNone(characters.find(what, clamped(start, characters.size())));
}

int CString::Find(const char* what, int start) const
{
    return what ? indexOrNone(characters.find(what, clamped(start, characters.size()))) : -1;
}

int CString::ReverseFind(char what) const
{
    return indexOrNone(characters.rfind(what));
}

CString& CString::MakeLower()
{
    for (char& c : characters)
        c = tgx::lowercased(c);
    return *this;
}

CString& CString::MakeUpper()
{
    std::transform(characters.begin(), characters.end(), characters.begin(), uppercased);
    return *this;
}

void CString::Format(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    // Formats into a new string, because an argument may point into this one.
    std::string text = tgx::formatted(format, arguments);
    va_end(arguments);
    characters = std::move(text);
}
