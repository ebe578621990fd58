#include "platform/online/netgame.h"
#include "tgx/online/accessors.h"

#include <algorithm>

#define RECORD CNetGame

READ_WRITE(CClientConnection*, Connection)
ADDRESS(CStringList, ChatText)
NOT_EMPTY(Messages, ChatText)
READ_ONLY(int, Id)
READ_ONLY(int, OpponentId)
READ_ONLY(int, ServerId)
DONE(DoneHeadsOrTails, Toss)
DONE(DoneBatOrBowl, Toss)
REQUEST(int, NewBatsman)
REQUEST(int, NewBowler)
REQUEST(int, NewBallTaken)
REQUEST(int, FollowOnEnforced)
REQUEST(int, Declared)
REQUEST(int, BadLight)
REQUEST(int, KeepStrike)
READ_ONLY(int, ChessClock)
READ_ONLY(int, OpponentChessClock)
READ_ONLY(int, Ready)
REQUEST(int, HighlightsRequest)
REQUEST(int, HighlightsChange)
REQUEST(bool, HighlightsVerify)
WRITE_ONLY(bool, HighlightsVerify)
REQUEST(bool, HighlightsReject)
READ_ONLY(int, Batting)
READ_ONLY(int, Bowling)
REQUEST(bool, LostConnection)
RAISE(SetLostConnection, LostConnection)
REQUEST(bool, ResendRand)
REQUEST(bool, BallByBall)
REQUEST(bool, SanityCheck)
REQUEST(bool, SanityFailed)
WRITE_ONLY(bool, SanityFailed)
ADDRESS(CSanityCheckPacket, SanityCheckPacket)

#undef RECORD

int CNetGame::SerializeDataCount() const
{
    return fields.SerializeData.GetSize();
}

int CNetGame::SerializeDataHead() const
{
    return fields.SerializeData.IsEmpty() ? -1 : fields.SerializeData[0];
}

bool CNetGame::HomeTeam() const
{
    return fields.Id < fields.OpponentId;
}

bool CNetGame::AwayTeam() const
{
    return fields.Id > fields.OpponentId;
}

int CNetGame::HeadsOrTails() const
{
    return static_cast<int>(fields.Toss & 3);
}

int CNetGame::BatOrBowl() const
{
    return static_cast<int>(fields.Toss >> 2 & 3);
}

void CNetGame::SetChessClock(int value)
{
    fields.ChessClock = value;
}

void CNetGame::DecrementChessClock(int by)
{
    fields.ChessClock = std::max(fields.ChessClock - by, 0);
}

void CNetGame::SetOpponentChessClock(int value)
{
    fields.OpponentChessClock = value;
}

void CNetGame::DoneReady(int mask)
{
    fields.Ready &= ~mask;
}
