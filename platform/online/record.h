#pragma once

#include <cstdint>

/// A field that the network side sets and that the interface resets to idle, by the Done call, once it has
/// acted. idle is 0, or -1 where 0 is a valid request.
template<class T, T idle = 0>
class Request {
public:
    Request& operator=(T raised)
    {
        value = raised;
        return *this;
    }
    operator T() const { return value; }
    void done() { value = idle; }

private:
    T value = idle;
};

/// A byte used as a bool: 0 or nonzero.
using NetFlag = std::uint8_t;
using FlagRequest = Request<NetFlag>;

/// Base class of the client library's records. Their fields are in a separate struct, in the record's order,
/// each with the name of the accessor that reads it.
template<class Fields>
class OnlineRecord {
public:
    /// Gives write access to the fields, for the client library or a game's tests:
    /// `game.networkSide().NewBatsman = 3;` makes a request, `game.networkSide() = {};` resets the record.
    /// The interface uses the accessors instead.
    Fields& networkSide() { return fields; }
    const Fields& networkSide() const { return fields; }

protected:
    Fields fields;
};
