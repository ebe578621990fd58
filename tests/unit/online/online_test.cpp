#include "platform/framework/exceptions.h"
#include "tests/unit/support/tgx_test.h"
#include "tgx/online/records.h"

namespace {

/// The program's connection in its initial state, with a game and a challenge.
class OnlineTest : public TgxTest {
protected:
    OnlineTest()
    {
        g_Connection.networkSide() = {};
        g_Connection.networkSide().NetGame = &game;
        g_Connection.networkSide().NetChallenge = &challenge;
    }
    ~OnlineTest() override { g_Connection.networkSide() = {}; }

    /// Adds users with these team ids.
    static void setUsers(std::initializer_list<int> ids)
    {
        for (int id : ids) {
            CTeamDetails user;
            user.networkSide().TeamId = id;
            g_Connection.Users()->Add(user);
        }
    }

    CNetGame game{&g_Connection};
    CNetChallenge challenge{&g_Connection};
};

/// RAISE sets the request, from the network side or from the interface itself.
#define REQUEST_OF(RECORD, NAME, RAISE, DONE, IDLE)                                                          \
    {                                                                                                        \
#RECORD "." #NAME, IDLE,                                                                             \
            [&] { (RECORD).RAISE; },                                                                         \
                                  [&] { return static_cast<int>((RECORD).NAME()); },                         \
                                                                                  [&] { (RECORD).DONE(); }   \
    }
#define REQUEST(RECORD, NAME, IDLE) REQUEST_OF(RECORD, NAME, networkSide().NAME = 1, Done##NAME, IDLE)

TEST_F(OnlineTest, ARequestIsSetUntilItsOwnDoneCall)
{
    CClientConnection& connection = g_Connection;
    const struct {
        const char* name;
        int idle;
        std::function<void()> raise;
        std::function<int()> read;
        std::function<void()> done;
    } rows[] = {
        REQUEST_OF(connection, TeamsChanged, UpdateTeamsScreen(), DoneTeamsScreen, 0),
        REQUEST_OF(connection, ChannelsChanged, UpdateChannelsScreen(), DoneChannelsScreen, 0),
        REQUEST_OF(connection, ChannelUsersChanged, UpdateChannelUsersScreen(), DoneChannelUsersScreen, 0),
        REQUEST_OF(connection, UsersChanged, UpdateUsersScreen(), DoneUsersScreen, 0),
        REQUEST(connection, LoggedIn, 0),
        REQUEST(connection, TeamCreated, 0),
        REQUEST(connection, GotID, 0),
        REQUEST(connection, PatchFinished, 0),
        REQUEST(connection, VersionOkay, 0),
        REQUEST(connection, ScreenChange, 0),
        REQUEST(connection, PatchAvailable, 0),
        REQUEST(connection, PatchUpdate, 0),
        REQUEST(connection, ServerTimeOut, 0),
        REQUEST(game, NewBatsman, -1),
        REQUEST(game, NewBowler, -1),
        REQUEST(game, NewBallTaken, 0),
        REQUEST(game, FollowOnEnforced, -1),
        REQUEST(game, Declared, 0),
        REQUEST(game, BadLight, 0),
        REQUEST(game, KeepStrike, -1),
        REQUEST(game, HighlightsRequest, -1),
        REQUEST(game, HighlightsChange, -1),
        REQUEST_OF(game, HighlightsVerify, HighlightsVerify(true), DoneHighlightsVerify, 0),
        REQUEST(game, HighlightsReject, 0),
        REQUEST_OF(game, LostConnection, SetLostConnection(), DoneLostConnection, 0),
        REQUEST(game, ResendRand, 0),
        REQUEST(game, BallByBall, 0),
        REQUEST(game, SanityCheck, 0),
        REQUEST_OF(game, SanityFailed, SanityFailed(true), DoneSanityFailed, 0),
        REQUEST(challenge, Challenge, -1),
        REQUEST(challenge, SetupGame, 0),
        REQUEST(challenge, SwapControl, 0),
        REQUEST(challenge, StartGame, 0),
        REQUEST(challenge, CancelGame, 0),
        REQUEST(challenge, ChallengeTimeOut, 0),
        REQUEST_OF(challenge, LostConnection, SetLostConnection(), DoneLostConnection, 0),
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.read(), row.idle) << row.name << " at first";
    for (const auto& row : rows)
        row.raise();
    for (const auto& row : rows) {
        EXPECT_EQ(row.read(), 1) << row.name << " when set, after those before it were done";
        row.done();
        EXPECT_EQ(row.read(), row.idle) << row.name << " when done";
    }
    connection.RequestScreenChange(7);
    EXPECT_EQ(connection.ScreenChange(), 7);
}

TEST_F(OnlineTest, EachBitOfAStatus)
{
    const struct {
        int bit;
        const char* tests;
    } rows[] = {
        {0x001, " Online"},
        {0x002, " Chat"},
        {0x004, " Waiting CanChallenge"},
        {0x008, " Negociating Playing"},
        {0x010, " Playing PlayingOnline"},
        {0x020, " Playing PlayingOnline"},
        {0x040, " Aborted"},
        {0x080, " Reconnect"},
        {0x100, ""},
        {0x200, " GameOver PlayingOnline"},
        {0x400, " GameError"},
        {0x800, " TimeOut"},
        {~0xFFF, ""},
    };
    setUsers({1});
    g_Connection.FindSelf(1);
    for (const auto& row : rows) {
        g_Connection.Status(row.bit);
        const CTeamDetails& team = g_Connection.Self();
        const std::pair<bool, const char*> answers[] = {
            {team.Online(), " Online"},           {team.Chat(), " Chat"},
            {team.Waiting(), " Waiting"},         {team.CanChallenge(), " CanChallenge"},
            {team.Negociating(), " Negociating"}, {team.Playing(), " Playing"},
            {team.Aborted(), " Aborted"},         {team.Reconnect(), " Reconnect"},
            {team.GameOver(), " GameOver"},       {team.GameError(), " GameError"},
            {team.TimeOut(), " TimeOut"},         {g_Connection.PlayingOnline() == row.bit, " PlayingOnline"},
        };
        std::string tests;
        for (const auto& [answer, name] : answers)
            tests += answer ? name : "";
        EXPECT_EQ(tests, row.tests) << std::hex << row.bit;
    }
}

TEST_F(OnlineTest, BitsAndBytesInsideAWord)
{
    CTeamDetails team;
    team.Preferences(static_cast<int>(0xF0030A05));
    game.networkSide().Toss = 0b1001;
    game.networkSide().Ready = 0b111;
    game.DoneReady(0b101);
    const struct {
        const char* name;
        int value, expected;
    } rows[] = {
        {"game type: a bit of the mask", team.MatchGameType(6), 1},
        {"game type: no bit of the mask", team.MatchGameType(0x0A), 0},
        {"result type: a bit of the mask", team.MatchResultType(2), 1},
        {"result type: no bit of the mask", team.MatchResultType(0x105), 0},
        {"highlights are a number", team.MatchHighlights(3), 1},
        {"highlights: a bit is not enough", team.MatchHighlights(1), 0},
        {"the time limit has no sign", team.MatchTimeLimit(0xF0), 1},
        {"and is compared as a byte", team.MatchTimeLimit(-16), 0},
        {"heads or tails", game.HeadsOrTails(), 1},
        {"bat or bowl", game.BatOrBowl(), 2},
        {"ready keeps the bits outside the mask", game.Ready(), 0b010},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.value, row.expected) << row.name;
    game.DoneBatOrBowl();
    EXPECT_EQ(game.HeadsOrTails(), 0) << "one Done call ends both";
}

TEST_F(OnlineTest, HomeAndAway)
{
    const struct {
        const char* name;
        int self, opponent; // team ids; those of the users are 30, 10, 20
        int home, away;     // team ids, by place in the list
        bool isHome, isAway;
    } rows[] = {
        {"first in the list, but the higher id", 30, 10, 30, 10, false, true},
        {"later in the list, but the lower id", 10, 30, 30, 10, true, false},
        {"lower in both", 10, 20, 10, 20, true, false},
        {"against itself", 20, 20, 20, 20, false, false},
    };
    setUsers({30, 10, 20});
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        g_Connection.FindSelf(row.self);
        g_Connection.FindOpponent(row.opponent);
        EXPECT_EQ(g_Connection.HomeTeam().networkSide().TeamId, row.home);
        EXPECT_EQ(g_Connection.AwayTeam().networkSide().TeamId, row.away);
        EXPECT_EQ(g_Connection.isHomeTeam(), row.isHome);
        EXPECT_EQ(g_Connection.isLowestId(), row.isHome);
        EXPECT_EQ(g_Connection.isAwayTeam(), row.isAway);
        EXPECT_EQ(g_Connection.isHighestId(), row.isAway);

        game.networkSide().Id = row.self;
        game.networkSide().OpponentId = row.opponent;
        EXPECT_EQ(game.HomeTeam(), row.isHome) << "a game compares its ids";
        EXPECT_EQ(game.AwayTeam(), row.isAway);
    }
}

TEST_F(OnlineTest, WithoutARecordOfOurOwn)
{
    setUsers({30, 10});
    g_Connection.FindSelf(11);
    EXPECT_EQ(g_Connection.SelfIndex(), -1);
    g_Connection.Status(0x230);
    EXPECT_EQ(g_Connection.Status(), 0);
    EXPECT_EQ(g_Connection.PlayingOnline(), 0);
    EXPECT_EQ(g_Connection.TeamDetails(0).Status(), 0) << "nor does another team's";
    EXPECT_THROW(g_Connection.Self(), CInvalidArgException);
    EXPECT_THROW(g_Connection.TeamDetails(2), CInvalidArgException);
    EXPECT_THROW(g_Connection.isHomeTeam(), CInvalidArgException);
    EXPECT_THROW(g_Connection.TeamDetails(0).Rank(3), CInvalidArgException);
    EXPECT_THROW(g_Connection.TeamDetails(0).Ratings(CELORating(), -1), CInvalidArgException);
}

TEST_F(OnlineTest, CountersStopAtZero)
{
    challenge.networkSide().Updated = 2;
    for (int expected : {1, 0, 0}) {
        challenge.DoneUpdated();
        EXPECT_EQ(challenge.Updated(), expected);
    }
    game.SetChessClock(13);
    game.SetOpponentChessClock(13);
    for (int expected : {3, 0, 0}) {
        game.DecrementChessClock(10);
        EXPECT_EQ(game.ChessClock(), expected);
    }
    EXPECT_EQ(game.OpponentChessClock(), 13);
}

TEST_F(OnlineTest, WaitingTextsAndLists)
{
    EXPECT_FALSE(g_Connection.Messages() || g_Connection.Alerts() || game.Messages());
    g_Connection.AlertText()->AddTail("server closes at ten");
    EXPECT_TRUE(g_Connection.Alerts());
    EXPECT_FALSE(g_Connection.Messages() || game.Messages());
    game.ChatText()->AddTail("well played");
    EXPECT_TRUE(game.Messages());
    g_Connection.AlertText()->RemoveAll();
    EXPECT_FALSE(g_Connection.Alerts() || g_Connection.Messages());

    g_Connection.PatchMessageText() = "12 files";
    EXPECT_EQ(g_Connection.PatchMessage(), 8);
    g_Connection.DonePatchMessage();
    EXPECT_EQ(g_Connection.PatchMessage(), 0);

    EXPECT_EQ(game.SerializeDataHead(), -1);
    game.networkSide().SerializeData.Add(17);
    game.networkSide().SerializeData.Add(4);
    EXPECT_EQ(game.SerializeDataCount(), 2);
    EXPECT_EQ(game.SerializeDataHead(), 17);

    g_Connection.networkSide().BytesToSend = 1;
    EXPECT_TRUE(g_Connection.DataToSend());
    EXPECT_FALSE(g_Connection.DataToRead());
    EXPECT_EQ(g_Connection.NetGame()->Connection(), &g_Connection);
}

TEST_F(OnlineTest, ARatingKeepsItsFractionsAndIsCopiedCompletely)
{
    CELORating rating;
    rating.networkSide() = {1500.9, 3, 4, 5.5, 1510.2, -0.9, -7.9};
    CTeamDetails team;
    team.Ratings(rating, 1);
    CTeamDetails copy = team;
    const ELORatingFields& fields = copy.Ratings(1).networkSide();
    EXPECT_EQ(copy.Ratings(1).Rating(), 1500);
    EXPECT_EQ(copy.Ratings(1).Draw(), 0) << "truncated towards zero";
    EXPECT_EQ(copy.Ratings(1).Lose(), -7);
    EXPECT_EQ(fields.Rating, 1500.9);
    EXPECT_EQ(fields.OwnInt, 4);
    EXPECT_EQ(fields.OwnDouble, 5.5);
    EXPECT_EQ(copy.Ratings(0).Rating(), 0);
}

TEST_F(OnlineTest, TheExitClosesTheConnection)
{
    start("SCREEN \"S\" 0 0 640 480 \"\"\n");
    g_Connection.ConnectionStatus(CS_CONNECTED);
    play("frame 2");
    win().exitProgram();
    EXPECT_EQ(g_Connection.ConnectionStatus(), CS_CONNECTED) << "not before the next frame";
    win().runFrame();
    EXPECT_EQ(g_Connection.ConnectionStatus(), CS_DISCONNECTED);
}

} // namespace
