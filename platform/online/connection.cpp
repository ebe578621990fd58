#include "platform/online/connection.h"

CClientConnection g_Connection;

void CClientConnection::Close()
{
    CSocket::Close();
}
