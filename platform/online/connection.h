#pragma once

// The records of online play. They belong to a client library, for which this folder is a stand-in: it
// defines their fields, constructors and destructors, FindTeam, and a connection without a network. The
// accessors, with which the interface reads the fields, are defined in tgx/online/ and exported by libtgx, so
// code that calls one links both libraries. Nothing in this folder calls one. Only the virtual accessors are
// defined here, because the table of virtual functions is here. Another client library replaces this folder
// by defining the same symbols.

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

/// Details of a user in a channel. The client library defines the content.
class TGX_PLATFORM_API CUserDetails {};
/// The user's own details. The client library defines the content.
class TGX_PLATFORM_API CClientDetails {};
/// A chat channel. The client library defines the content.
class TGX_PLATFORM_API CChannelDetails {};

struct ClientConnectionFields {
    int BytesToRead = 0; // bytes received and not yet read
    int BytesToSend = 0; // bytes written and not yet sent
    CONNSTATUS ConnectionStatus = CS_DISCONNECTED;
    CLogFile LogFile;
    CNetTimer Timer;
    int ConnectionStep = 0;
    int TeamSelection = 0; // set by SetTeamSelection
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
    CNetChallenge* NetChallenge = nullptr; // not owned, and neither is NetGame
    CNetGame* NetGame = nullptr;
    CString InChannel;
    CString GameFilename;
    FlagRequest ServerTimeOut;
    NetFlag BetweenInnings = 0;
};

/// The connection to the server of the online games, with the state received through it. The interface polls
/// it; there are no callbacks. An accessor reads the request of the same name, and its Done call ends the
/// request. This connection has no network: its state changes only through networkSide() (see OnlineRecord)
/// and the setters.
class TGX_PLATFORM_API CClientConnection : public CSocket, public OnlineRecord<ClientConnectionFields> {
public:
    CClientConnection();
    CClientConnection(const CClientConnection&) = delete;
    CClientConnection& operator=(const CClientConnection&) = delete;
    ~CClientConnection() override;

    /// Ends the connection and sets ConnectionStatus to CS_DISCONNECTED.
    void Close() override;
    /// Returns the index in Users of the record with this team id, or -1.
    int FindTeam(int id) const;

    virtual bool DataToRead() const; ///< whether bytes are waiting to be read
    virtual bool DataToSend() const; ///< whether bytes are waiting to be sent

    CONNSTATUS ConnectionStatus() const;
    CONNSTATUS ConnectionStatus(CONNSTATUS value); ///< returns value
    CLogFile& LogFile();
    CNetTimer& Timer();
    int ConnectionStep() const;
    bool SetTeamSelection(int selection); ///< always returns true
    int ServerTeams() const;
    CClientDetails& Personal();

    // Lists that the interface has to show again.
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
    bool GotID() const; ///< whether the server has sent the id
    void DoneGotID();
    bool PatchFinished() const;
    void DonePatchFinished();
    bool VersionOkay() const;
    void DoneVersionOkay();

    CStringList* ChatText();
    bool Messages() const; ///< whether ChatText is not empty
    CStringList* AlertText();
    bool Alerts() const; ///< whether AlertText is not empty
    int NumPatchFiles() const;
    CString& PatchMessageText();
    int PatchMessage() const; ///< length of PatchMessageText
    void DonePatchMessage();

    CArray<CTeamDetails, CTeamDetails&>* Teams();
    CArray<CChannelDetails, CChannelDetails&>* Channels();
    CArray<CUserDetails, CUserDetails&>* ChannelUsers(); ///< users of the channel InChannel
    CArray<CTeamDetails, CTeamDetails&>* Users();

    int SelfIndex() const; ///< index of the own record in Users, or -1
    void FindSelf(int id);
    int OpponentIndex() const; ///< index of the opponent's record in Users, or -1
    void FindOpponent(int id);

    int ScreenChange() const; ///< 0 when there is no request
    void RequestScreenChange(int screen);
    void DoneScreenChange();
    int PatchAvailable() const;
    void DonePatchAvailable();
    int PatchUpdate() const;
    void DonePatchUpdate();

    CNetChallenge* NetChallenge() const; ///< null if there is none
    CNetGame* NetGame() const;           ///< null if there is none
    CString& InChannel();
    CString& GameFilename();
    void GameFilename(CString value);
    bool ServerTimeOut() const;
    void DoneServerTimeOut();
    bool BetweenInnings() const;
    void BetweenInnings(bool value);

    /// Returns a record of Users. An index outside Users, such as -1 for a record that was not found, raises
    /// CInvalidArgException. The reference is valid until Users changes, like those returned by the accessors
    /// below.
    CTeamDetails& TeamDetails(int index);
    CTeamDetails& Self();
    CTeamDetails& Opponent();
    /// The home team is the first record in Users. The functions below compare team ids instead.
    CTeamDetails& HomeTeam();
    CTeamDetails& AwayTeam();
    bool isHomeTeam() const;  ///< whether the own team id is the lower one
    bool isLowestId() const;  ///< same as isHomeTeam
    bool isAwayTeam() const;  ///< whether the own team id is the higher one
    bool isHighestId() const; ///< same as isAwayTeam

    /// Status of the own record. Without one, reading returns 0 and setting does nothing.
    int Status() const;
    void Status(int value);
    /// Returns the bits of Status that concern a match: 0x010, 0x020 and GameOver.
    int PlayingOnline() const;
};

/// The program's one connection.
extern TGX_PLATFORM_API CClientConnection g_Connection;
