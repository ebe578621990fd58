#include "platform/online/connection.h"
#include "tgx/online/accessors.h"

namespace {

using TeamArray = CArray<CTeamDetails, CTeamDetails&>;
using ChannelArray = CArray<CChannelDetails, CChannelDetails&>;
using UserArray = CArray<CUserDetails, CUserDetails&>;

int teamIdAt(const ClientConnectionFields& fields, int index)
{
    return fields.Users[index].networkSide().TeamId;
}

} // namespace

#define RECORD CClientConnection

READ_ONLY(CONNSTATUS, ConnectionStatus)
REFERENCE(CLogFile, LogFile)
REFERENCE(CNetTimer, Timer)
READ_ONLY(int, ConnectionStep)
READ_ONLY(int, ServerTeams)
REFERENCE(CClientDetails, Personal)
SCREEN_REQUEST(Teams)
SCREEN_REQUEST(Channels)
SCREEN_REQUEST(ChannelUsers)
SCREEN_REQUEST(Users)
REQUEST(bool, LoggedIn)
REQUEST(bool, TeamCreated)
REQUEST(bool, GotID)
REQUEST(bool, PatchFinished)
REQUEST(bool, VersionOkay)
ADDRESS(CStringList, ChatText)
NOT_EMPTY(Messages, ChatText)
ADDRESS(CStringList, AlertText)
NOT_EMPTY(Alerts, AlertText)
READ_ONLY(int, NumPatchFiles)
REFERENCE(CString, PatchMessageText)
ADDRESS(TeamArray, Teams)
ADDRESS(ChannelArray, Channels)
ADDRESS(UserArray, ChannelUsers)
ADDRESS(TeamArray, Users)
READ_ONLY(int, SelfIndex)
READ_ONLY(int, OpponentIndex)
REQUEST(int, ScreenChange)
REQUEST(int, PatchAvailable)
REQUEST(int, PatchUpdate)
READ_ONLY(CNetChallenge*, NetChallenge)
READ_ONLY(CNetGame*, NetGame)
REFERENCE(CString, InChannel)
REFERENCE(CString, GameFilename)
WRITE_ONLY(CString, GameFilename)
REQUEST(bool, ServerTimeOut)
READ_WRITE(bool, BetweenInnings)

#undef RECORD

CONNSTATUS CClientConnection::ConnectionStatus(CONNSTATUS value)
{
    return fields.ConnectionStatus = value;
}

bool CClientConnection::SetTeamSelection(int selection)
{
    fields.TeamSelection = selection;
    return true;
}

int CClientConnection::PatchMessage() const
{
    return fields.PatchMessageText.GetLength();
}

void CClientConnection::DonePatchMessage()
{
    fields.PatchMessageText.Empty();
}

void CClientConnection::FindSelf(int id)
{
    fields.SelfIndex = FindTeam(id);
}

void CClientConnection::FindOpponent(int id)
{
    fields.OpponentIndex = FindTeam(id);
}

void CClientConnection::RequestScreenChange(int screen)
{
    fields.ScreenChange = screen;
}

CTeamDetails& CClientConnection::TeamDetails(int index)
{
    return fields.Users[index];
}

CTeamDetails& CClientConnection::Self()
{
    return TeamDetails(fields.SelfIndex);
}

CTeamDetails& CClientConnection::Opponent()
{
    return TeamDetails(fields.OpponentIndex);
}

CTeamDetails& CClientConnection::HomeTeam()
{
    return fields.SelfIndex < fields.OpponentIndex ? Self() : Opponent();
}

CTeamDetails& CClientConnection::AwayTeam()
{
    return fields.SelfIndex > fields.OpponentIndex ? Self() : Opponent();
}

bool CClientConnection::isHomeTeam() const
{
    return teamIdAt(fields, fields.SelfIndex) < teamIdAt(fields, fields.OpponentIndex);
}

bool CClientConnection::isAwayTeam() const
{
    return teamIdAt(fields, fields.SelfIndex) > teamIdAt(fields, fields.OpponentIndex);
}

bool CClientConnection::isLowestId() const
{
    return isHomeTeam();
}

bool CClientConnection::isHighestId() const
{
    return isAwayTeam();
}

int CClientConnection::Status() const
{
    return fields.SelfIndex < 0 ? 0 : fields.Users[fields.SelfIndex].Status();
}

void CClientConnection::Status(int value)
{
    if (fields.SelfIndex >= 0)
        Self().Status(value);
}

int CClientConnection::PlayingOnline() const
{
    return Status() & 0x230;
}
