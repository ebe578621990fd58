#pragma once

#include "platform/export.h"
#include "platform/online/record.h"

struct TeamResultsFields {
    char Type = 0;
    int Played = 0;
    int Disconnections = 0;
    int Won = 0;
    int Lost = 0;
    int Tied = 0;
    int Drawn = 0;
    int Points = 0;
    int Rating = 0;
};

/// The results of a team in one kind of match.
class TGX_PLATFORM_API TeamResults : public OnlineRecord<TeamResultsFields> {
public:
    char Type() const;
    int Played() const;
    int Disconnections() const;
    int Won() const;
    int Lost() const;
    int Tied() const;
    int Drawn() const;
    int Points() const;
    int Rating() const;

    void Type(char value);
    void Played(int value);
    void Disconnections(int value);
    void Won(int value);
    void Lost(int value);
    void Tied(int value);
    void Drawn(int value);
    void Points(int value);
    void Rating(int value);
};

struct ELORatingFields {
    double Rating = 0;
    int Matches = 0;
    int OwnInt = 0; // used by the client library only, like OwnDouble
    double OwnDouble = 0;
    double Win = 0;
    double Draw = 0;
    double Lose = 0;
};

/// The rating of a team, and what it would become after the next match. The fields keep fractions, which the
/// accessors truncate towards zero.
class TGX_PLATFORM_API CELORating : public OnlineRecord<ELORatingFields> {
public:
    CELORating() = default;
    CELORating(const CELORating&) = default;
    CELORating& operator=(const CELORating&) = default;
    virtual ~CELORating();

    int Rating() const;
    void Rating(int value);
    int Matches() const;
    void Matches(int value);
    int Win() const;
    int Draw() const;
    int Lose() const;
};

struct TeamDetailsFields {
    int TeamId = 0;
    int DataSize = 0;
    unsigned char* Data = nullptr; // DataSize bytes; not owned, shared by copies of the record
    int Status = 0;
    int Rank[3] = {};
    int Preferences = 0;
    TeamResults Results[2];
    CELORating Ratings[2];
};

/// A team, or a user represented by a team. An index outside the record's arrays raises CInvalidArgException.
class TGX_PLATFORM_API CTeamDetails : public OnlineRecord<TeamDetailsFields> {
public:
    int DataSize() const;
    unsigned char* Data() const;

    /// A set of bits. Each accessor below returns whether one of its bits is set.
    int Status() const;
    void Status(int value);
    bool Online() const;
    bool Chat() const;
    bool Waiting() const;
    bool CanChallenge() const; ///< same as Waiting
    bool Negociating() const;
    bool Playing() const; ///< also true while negotiating
    bool Aborted() const;
    bool Reconnect() const;
    bool GameOver() const;
    bool GameError() const;
    bool TimeOut() const;

    /// index: 0 to 2.
    int Rank(int index) const;
    void Rank(int value, int index);

    /// Four bytes: a set of bits each for kinds of game and kinds of result, then a number each for
    /// highlights and time limit.
    int Preferences() const;
    void Preferences(int value);
    bool MatchGameType(int mask) const;   ///< whether one of these kinds of game is wanted
    bool MatchResultType(int mask) const; ///< whether one of these kinds of result is wanted
    bool MatchHighlights(int value) const;
    bool MatchTimeLimit(int value) const;

    /// index: 0 or 1.
    TeamResults& Results(int index);
    void Results(const TeamResults& record, int index);
    CELORating& Ratings(int index);
    void Ratings(const CELORating& record, int index);
};
