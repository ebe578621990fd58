#include "platform/online/connection.h"

CClientConnection g_Connection;

CClientConnection::CClientConnection() = default;
CClientConnection::~CClientConnection() = default;

void CClientConnection::Close()
{
    CSocket::Close();
    fields.ConnectionStatus = CS_DISCONNECTED;
    fields.BytesToRead = 0;
    fields.BytesToSend = 0;
}

int CClientConnection::FindTeam(int id) const
{
    for (int index = 0; index < fields.Users.GetSize(); ++index)
        if (fields.Users[index].networkSide().TeamId == id)
            return index;
    return -1;
}

bool CClientConnection::DataToRead() const
{
    return fields.BytesToRead > 0;
}

bool CClientConnection::DataToSend() const
{
    return fields.BytesToSend > 0;
}
