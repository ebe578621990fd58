#include "platform/online/netchallenge.h"
#include "tgx/online/accessors.h"

#include <algorithm>

#define RECORD CNetChallenge

READ_WRITE(CClientConnection*, Connection)
REQUEST(int, Challenge)
REQUEST(int, SetupGame)
READ_ONLY(int, Id)
READ_ONLY(int, OpponentId)
READ_ONLY(int, ChallengerId)
READ_ONLY(int, Updated)
READ_WRITE(int, ChallengeType)
READ_WRITE(int, ChallengeLength)
READ_WRITE(int, MatchType)
READ_WRITE(int, MatchLength)
READ_WRITE(int, TimeReserve)
READ_WRITE(int, BallByBallLimit)
READ_WRITE(int, BatHighlights)
READ_WRITE(int, BowlHighlights)
REQUEST(bool, SwapControl)
READ_WRITE(bool, Player1Ready)
READ_WRITE(bool, Player2Ready)
REQUEST(bool, StartGame)
REQUEST(bool, CancelGame)
REQUEST(bool, ChallengeTimeOut)
REQUEST(bool, LostConnection)
RAISE(SetLostConnection, LostConnection)

#undef RECORD

bool CNetChallenge::Challenger() const
{
    return fields.Id == fields.ChallengerId;
}

void CNetChallenge::DoneUpdated()
{
    fields.Updated = std::max(fields.Updated - 1, 0);
}
