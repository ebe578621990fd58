#pragma once

// The records of online play. They belong to a client library, and this folder is a stand-in for it: their
// fields, constructors and destructors, FindTeam, and a connection without a network. What reads the fields
// on behalf of the interface, the accessors, are members too, but the toolkit carries them: they are defined
// in tgx/online/ and exported by libtgx, so who calls one links both libraries. Here nothing calls one. Only
// virtual accessors are defined here, because the table of virtual functions is. Another client library takes
// this folder's place by defining the same.

#include "platform/export.h"
#include "platform/framework/csocket.h"
#include "platform/framework/cstringlist.h"
#include "platform/online/logfile.h"
#include "platform/online/nettimer.h"
#include "platform/online/record.h"
#include "platform/online/team.h"

class CNetChallenge;
class CNetGame;

enum CONNSTATUS { CS_DISCONNECTED, CS_CONNECTING, CS_CONNECTED };

/// Details of a user in a channel. Content: the client library's.
class TGX_PLATFORM_API CUserDetails {};
/// The user's own details. Content: the client library's.
class TGX_PLATFORM_API CClientDetails {};
/// A channel to chat in. Content: the client library's.
class TGX_PLATFORM_API CChannelDetails {};

struct ClientConnectionFields {
    int BytesToRead = 0; // in the buffer behind DataToRead
    int BytesToSend = 0; // in the buffer behind DataToSend
    CONNSTATUS ConnectionStatus = CS_DISCONNECTED;
    CLogFile LogFile;
    CNetTimer Timer;
    int ConnectionStep = 0;
    int TeamSelection = 0; // by SetTeamSelection
    int ServerTeams = 0;
    CClientDetails Personal;
    FlagRequest TeamsChanged;
    FlagRequest ChannelsChanged;
    FlagRequest ChannelUsersChanged;
    FlagRequest UsersChanged;
    FlagRequest LoggedIn;
    FlagRequest TeamCreated;
    FlagRequest GotID;
    FlagRequest PatchFinished;
    FlagRequest VersionOkay;
    CStringList ChatText;
    CStringList AlertText;
    int NumPatchFiles = 0;
    CString PatchMessageText;
    CArray<CTeamDetails, CTeamDetails&> Teams;
    CArray<CChannelDetails, CChannelDetails&> Channels;
    CArray<CUserDetails, CUserDetails&> ChannelUsers;
    CArray<CTeamDetails, CTeamDetails&> Users;
    int SelfIndex = -1;
    int OpponentIndex = -1;
    Request<int> ScreenChange;
    Request<int> PatchAvailable;
    Request<int> PatchUpdate;
    CNetChallenge* NetChallenge = nullptr; // not owned, as NetGame
    CNetGame* NetGame = nullptr;
    CString InChannel;
    CString GameFilename;
    FlagRequest ServerTimeOut;
    NetFlag BetweenInnings = 0;
};

/// The connection to the server of the online games, and all that is known through it. The interface polls
/// it; nothing calls back. A request is read by the accessor of its name; its Done call ends it. There is no
/// network behind it: its state changes when the network side (see OnlineRecord) or a setter says so.
class TGX_PLATFORM_API CClientConnection : public CSocket, public OnlineRecord<ClientConnectionFields> {
public:
    CClientConnection();
    CClientConnection(const CClientConnection&) = delete;
    CClientConnection& operator=(const CClientConnection&) = delete;
    ~CClientConnection() override;

    /// Ends the connection: it is disconnected from here on.
    void Close() override;
    /// Index in Users of the record with this team id, or -1.
    int FindTeam(int id) const;

    virtual bool DataToRead() const; ///< bytes wait to be read
    virtual bool DataToSend() const; ///< bytes wait to be sent

    CONNSTATUS ConnectionStatus() const;
    CONNSTATUS ConnectionStatus(CONNSTATUS value); ///< returns value
    CLogFile& LogFile();
    CNetTimer& Timer();
    int ConnectionStep() const;
    bool SetTeamSelection(int selection); ///< true
    int ServerTeams() const;
    CClientDetails& Personal();

    // Lists that have to be shown anew.
    bool TeamsChanged() const;
    void UpdateTeamsScreen();
    void DoneTeamsScreen();
    bool ChannelsChanged() const;
    void UpdateChannelsScreen();
    void DoneChannelsScreen();
    bool ChannelUsersChanged() const;
    void UpdateChannelUsersScreen();
    void DoneChannelUsersScreen();
    bool UsersChanged() const;
    void UpdateUsersScreen();
    void DoneUsersScreen();

    bool LoggedIn() const;
    void DoneLoggedIn();
    bool TeamCreated() const;
    void DoneTeamCreated();
    bool GotID() const; ///< the id has come from the server
    void DoneGotID();
    bool PatchFinished() const;
    void DonePatchFinished();
    bool VersionOkay() const;
    void DoneVersionOkay();

    CStringList* ChatText();
    bool Messages() const; ///< ChatText is not empty
    CStringList* AlertText();
    bool Alerts() const; ///< AlertText is not empty
    int NumPatchFiles() const;
    CString& PatchMessageText();
    int PatchMessage() const; ///< length of PatchMessageText
    void DonePatchMessage();

    CArray<CTeamDetails, CTeamDetails&>* Teams();
    CArray<CChannelDetails, CChannelDetails&>* Channels();
    CArray<CUserDetails, CUserDetails&>* ChannelUsers(); ///< of the channel InChannel
    CArray<CTeamDetails, CTeamDetails&>* Users();

    int SelfIndex() const; ///< own record in Users, or -1
    void FindSelf(int id);
    int OpponentIndex() const; ///< the opponent's record in Users, or -1
    void FindOpponent(int id);

    int ScreenChange() const; ///< 0 when there is no request
    void RequestScreenChange(int screen);
    void DoneScreenChange();
    int PatchAvailable() const;
    void DonePatchAvailable();
    int PatchUpdate() const;
    void DonePatchUpdate();

    CNetChallenge* NetChallenge() const; ///< null when there is none in hand
    CNetGame* NetGame() const;           ///< null when there is none in hand
    CString& InChannel();
    CString& GameFilename();
    void GameFilename(CString value);
    bool ServerTimeOut() const;
    void DoneServerTimeOut();
    bool BetweenInnings() const;
    void BetweenInnings(bool value);

    /// A record of Users. An index outside, also that of a record that was not found, raises the
    /// invalid-argument exception. Valid until Users changes; so are those below.
    CTeamDetails& TeamDetails(int index);
    CTeamDetails& Self();
    CTeamDetails& Opponent();
    /// Home plays who stands first in Users. The questions below go by team id instead.
    CTeamDetails& HomeTeam();
    CTeamDetails& AwayTeam();
    bool isHomeTeam() const;  ///< the own team id is lower
    bool isLowestId() const;  ///< as isHomeTeam
    bool isAwayTeam() const;  ///< the own team id is higher
    bool isHighestId() const; ///< as isAwayTeam

    /// Status of the own record; without one 0, and nothing to set.
    int Status() const;
    void Status(int value);
    /// What Status holds of the bits of a match: 0x010, 0x020 and GameOver.
    int PlayingOnline() const;
};

/// The program's one connection.
extern TGX_PLATFORM_API CClientConnection g_Connection;
