#pragma once

#include "platform/export.h"
#include "platform/online/record.h"

class CClientConnection;

struct NetChallengeFields {
    CClientConnection* Connection = nullptr;
    Request<int, -1> Challenge;
    Request<int> SetupGame;
    int Id = 0;
    int OpponentId = 0;
    int ChallengerId = 0;
    int Updated = 0;
    int ChallengeType = 0;
    int ChallengeLength = 0;
    int MatchType = 0;
    int MatchLength = 0;
    int TimeReserve = 0;
    int BallByBallLimit = 0;
    int BatHighlights = 0;
    int BowlHighlights = 0;
    FlagRequest SwapControl;
    NetFlag Player1Ready = 0;
    NetFlag Player2Ready = 0;
    FlagRequest StartGame;
    FlagRequest CancelGame;
    FlagRequest ChallengeTimeOut;
    FlagRequest LostConnection;
};

/// A challenge to a match, from the invitation until the terms are agreed. An accessor reads the request of
/// the same name, and its Done call ends the request.
class TGX_PLATFORM_API CNetChallenge : public OnlineRecord<NetChallengeFields> {
public:
    /// Takes the owning connection, or null.
    explicit CNetChallenge(CClientConnection* connection = nullptr);
    CNetChallenge(const CNetChallenge&) = default;
    CNetChallenge& operator=(const CNetChallenge&) = default;
    ~CNetChallenge();

    CClientConnection* Connection() const;
    void Connection(CClientConnection* value);

    int Challenge() const; ///< -1 when there is no request
    void DoneChallenge();
    int SetupGame() const;
    void DoneSetupGame();

    int Id() const;
    int OpponentId() const;
    int ChallengerId() const;
    bool Challenger() const; ///< whether Id equals ChallengerId

    int Updated() const; ///< number of changes not yet handled
    void DoneUpdated();  ///< marks one of them as handled

    int ChallengeType() const;
    int ChallengeLength() const;
    int MatchType() const;
    int MatchLength() const;
    int TimeReserve() const;
    int BallByBallLimit() const;
    int BatHighlights() const;
    int BowlHighlights() const;
    void ChallengeType(int value);
    void ChallengeLength(int value);
    void MatchType(int value);
    void MatchLength(int value);
    void TimeReserve(int value);
    void BallByBallLimit(int value);
    void BatHighlights(int value);
    void BowlHighlights(int value);

    bool SwapControl() const;
    void DoneSwapControl();
    bool Player1Ready() const;
    void Player1Ready(bool value);
    bool Player2Ready() const;
    void Player2Ready(bool value);
    bool StartGame() const;
    void DoneStartGame();
    bool CancelGame() const;
    void DoneCancelGame();
    bool ChallengeTimeOut() const;
    void DoneChallengeTimeOut();
    bool LostConnection() const;
    void SetLostConnection();
    void DoneLostConnection();
};
