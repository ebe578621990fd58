#pragma once

#include <cstdint>

/// A field that the network side raises and the interface puts back, by the Done call, once it has acted. It
/// is made idle: 0, or -1 where 0 is something to ask for.
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

/// A byte that is 0 or not.
using NetFlag = std::uint8_t;
using FlagRequest = Request<NetFlag>;

/// What the records of the client library have in common: their fields lie in a struct of their own, in the
/// record's order, each named as the accessor that reads it.
template<class Fields>
class OnlineRecord {
public:
    /// The way in for whoever raises requests and fills the records: the client library, or in its place a
    /// game's tests. `game.networkSide().NewBatsman = 3;` asks for something, `game.networkSide() = {};`
    /// makes the record new. The interface itself reads the accessors and never comes here.
    Fields& networkSide() { return fields; }
    const Fields& networkSide() const { return fields; }

protected:
    Fields fields;
};
