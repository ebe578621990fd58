#include "platform/framework/exceptions.h"

void AfxThrowInvalidArgException()
{
    throw CInvalidArgException();
}
