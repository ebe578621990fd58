#include "platform/display/msgbox.h"

#include "platform/display/host.h"
#include "platform/framework/datadir.h"
#include "platform/framework/text.h"

#include <cstdarg>
#include <string>

unsigned MsgBox(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const std::string text = tgx::formatted(format, arguments);
    va_end(arguments);
    displayhost::current().showMessage(text);
    return 1;
}

void reportNotLoaded(const CString& name)
{
    const std::string text = std::string("cannot load ") + static_cast<const char*>(name);
    displayhost::current().showFailure(CString(text), missingDataFolder(name.view()));
}
