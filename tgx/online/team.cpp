#include "platform/online/team.h"
#include "platform/framework/exceptions.h"
#include "tgx/online/accessors.h"

#include <iterator>

namespace {

/// Returns a byte of word; byte 0 is the lowest.
int byteOf(int word, int byte)
{
    return word >> byte * 8 & 0xFF;
}

template<class Array>
auto& checkedAt(Array& array, int index)
{
    if (index < 0 || index >= static_cast<int>(std::size(array)))
        AfxThrowInvalidArgException();
    return array[index];
}

} // namespace

#define RECORD TeamResults

READ_WRITE(char, Type)
READ_WRITE(int, Played)
READ_WRITE(int, Disconnections)
READ_WRITE(int, Won)
READ_WRITE(int, Lost)
READ_WRITE(int, Tied)
READ_WRITE(int, Drawn)
READ_WRITE(int, Points)
READ_WRITE(int, Rating)

#undef RECORD
#define RECORD CELORating

READ_WRITE(int, Rating)
READ_WRITE(int, Matches)
READ_ONLY(int, Win)
READ_ONLY(int, Draw)
READ_ONLY(int, Lose)

#undef RECORD
#define RECORD CTeamDetails

// Defines bool NAME() const, which returns true if the record's Status has one of the bits.
#define STATUS_TEST(NAME, MASK)                                                                              \
    bool RECORD::NAME() const                                                                                \
    {                                                                                                        \
        return (fields.Status & (MASK)) != 0;                                                                \
    }

READ_ONLY(int, DataSize)
READ_ONLY(unsigned char*, Data)
READ_WRITE(int, Status)
STATUS_TEST(Online, 0x001)
STATUS_TEST(Chat, 0x002)
STATUS_TEST(Waiting, 0x004)
STATUS_TEST(CanChallenge, 0x004)
STATUS_TEST(Negociating, 0x008)
STATUS_TEST(Playing, 0x038)
STATUS_TEST(Aborted, 0x040)
STATUS_TEST(Reconnect, 0x080)
STATUS_TEST(GameOver, 0x200)
STATUS_TEST(GameError, 0x400)
STATUS_TEST(TimeOut, 0x800)
READ_WRITE(int, Preferences)

#undef STATUS_TEST
#undef RECORD

bool CTeamDetails::MatchGameType(int mask) const
{
    return (byteOf(fields.Preferences, 0) & mask) != 0;
}

bool CTeamDetails::MatchResultType(int mask) const
{
    return (byteOf(fields.Preferences, 1) & mask) != 0;
}

bool CTeamDetails::MatchHighlights(int value) const
{
    return byteOf(fields.Preferences, 2) == value;
}

bool CTeamDetails::MatchTimeLimit(int value) const
{
    return byteOf(fields.Preferences, 3) == value;
}

int CTeamDetails::Rank(int index) const
{
    return checkedAt(fields.Rank, index);
}

void CTeamDetails::Rank(int value, int index)
{
    checkedAt(fields.Rank, index) = value;
}

TeamResults& CTeamDetails::Results(int index)
{
    return checkedAt(fields.Results, index);
}

void CTeamDetails::Results(const TeamResults& record, int index)
{
    checkedAt(fields.Results, index) = record;
}

CELORating& CTeamDetails::Ratings(int index)
{
    return checkedAt(fields.Ratings, index);
}

void CTeamDetails::Ratings(const CELORating& record, int index)
{
    checkedAt(fields.Ratings, index) = record;
}
