#pragma once

#include "platform/export.h"
#include "platform/framework/cstringlist.h"
#include "platform/online/record.h"

class CClientConnection;

/// A packet that the two sides compare to check that their games are still in the same state. The client
/// library defines the content.
class TGX_PLATFORM_API CSanityCheckPacket {};

struct NetGameFields {
    CClientConnection* Connection = nullptr;
    CArray<int> SerializeData;
    CStringList ChatText;
    int Id = 0;
    int OpponentId = 0;
    int ServerId = 0;
    Request<unsigned> Toss; // bits 0 to 1: HeadsOrTails, bits 2 to 3: BatOrBowl
    Request<int, -1> NewBatsman;
    Request<int, -1> NewBowler;
    Request<int> NewBallTaken;
    Request<int, -1> FollowOnEnforced;
    Request<int> Declared;
    Request<int> BadLight;
    Request<int, -1> KeepStrike;
    int ChessClock = 0;
    int OpponentChessClock = 0;
    int Ready = 0;
    Request<int, -1> HighlightsRequest;
    Request<int, -1> HighlightsChange;
    FlagRequest HighlightsVerify;
    FlagRequest HighlightsReject;
    std::uint8_t Batting = 0;
    std::uint8_t Bowling = 0;
    FlagRequest LostConnection;
    FlagRequest ResendRand;
    FlagRequest BallByBall;
    FlagRequest SanityCheck;
    FlagRequest SanityFailed;
    CSanityCheckPacket SanityCheckPacket;
};

/// A match against another user. An accessor reads the request of the same name, and its Done call ends the
/// request.
class TGX_PLATFORM_API CNetGame : public OnlineRecord<NetGameFields> {
public:
    /// Takes the owning connection, or null.
    explicit CNetGame(CClientConnection* connection = nullptr);

    CClientConnection* Connection() const;
    void Connection(CClientConnection* value);

    int SerializeDataCount() const;
    int SerializeDataHead() const; ///< the first entry, or -1 when there is none

    CStringList* ChatText();
    bool Messages() const; ///< whether ChatText is not empty

    int Id() const;
    int OpponentId() const;
    int ServerId() const;
    bool HomeTeam() const; ///< whether Id is below OpponentId
    bool AwayTeam() const; ///< whether Id is above OpponentId

    /// Both values are 0 to 3 and share one request: either Done call ends both.
    int HeadsOrTails() const;
    int BatOrBowl() const;
    void DoneHeadsOrTails();
    void DoneBatOrBowl();

    int NewBatsman() const; ///< -1 when there is no request
    void DoneNewBatsman();
    int NewBowler() const; ///< -1 when there is no request
    void DoneNewBowler();
    int NewBallTaken() const;
    void DoneNewBallTaken();
    int FollowOnEnforced() const; ///< -1 when there is no request
    void DoneFollowOnEnforced();
    int Declared() const;
    void DoneDeclared();
    int BadLight() const;
    void DoneBadLight();
    int KeepStrike() const; ///< -1 when there is no request
    void DoneKeepStrike();

    int ChessClock() const;
    void SetChessClock(int value);
    void DecrementChessClock(int by); ///< stops at 0
    int OpponentChessClock() const;
    void SetOpponentChessClock(int value);

    int Ready() const; ///< a set of bits
    void DoneReady(int mask);

    int HighlightsRequest() const; ///< -1 when there is no request
    void DoneHighlightsRequest();
    int HighlightsChange() const; ///< -1 when there is no request
    void DoneHighlightsChange();
    bool HighlightsVerify() const;
    void HighlightsVerify(bool value);
    void DoneHighlightsVerify();
    bool HighlightsReject() const;
    void DoneHighlightsReject();

    int Batting() const;
    int Bowling() const;

    bool LostConnection() const;
    void SetLostConnection();
    void DoneLostConnection();
    bool ResendRand() const;
    void DoneResendRand();
    bool BallByBall() const;
    void DoneBallByBall();
    bool SanityCheck() const;
    void DoneSanityCheck();
    bool SanityFailed() const;
    void SanityFailed(bool value);
    void DoneSanityFailed();
    CSanityCheckPacket* SanityCheckPacket(); ///< points into the record
};
