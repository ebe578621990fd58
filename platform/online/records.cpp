// Constructors and destructors of the records that belong to a connection.

#include "platform/online/logfile.h"
#include "platform/online/netchallenge.h"
#include "platform/online/netgame.h"
#include "platform/online/team.h"

CNetGame::CNetGame(CClientConnection* connection)
{
    fields.Connection = connection;
}

CNetChallenge::CNetChallenge(CClientConnection* connection)
{
    fields.Connection = connection;
}

CNetChallenge::~CNetChallenge() = default;
CELORating::~CELORating() = default;
CLogFile::~CLogFile() = default;
