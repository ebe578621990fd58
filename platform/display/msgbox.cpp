#include "platform/display/msgbox.h"

#include "platform/display/host.h"
#include "platform/framework/datadir.h"

#include <cstdarg>
#include <cstdio>
#include <string>

unsigned MsgBox(const char* format, ...)
{
    va_list measured;
    va_start(measured, format);
    va_list written;
    va_copy(written, measured);
    const int length = std::vsnprintf(nullptr, 0, format, measured);
    va_end(measured);

    std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
    if (length > 0)
        std::vsnprintf(text.data(), text.size() + 1, format, written);
    va_end(written);
    displayhost::current().showMessage(text);
    return 1;
}

void reportNotLoaded(const CString& name)
{
    const std::string text = std::string("cannot load ") + static_cast<const char*>(name);
    displayhost::current().showFailure(CString(text), missingDataFolder(name.view()));
}
