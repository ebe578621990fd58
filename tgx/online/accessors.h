#pragma once

// Rows of the accessor tables. Each row defines the accessors of one field of RECORD, the class of the table;
// they have the field's name. Flags are returned as bool and short fields as int, whatever their width.

/// Defines TYPE NAME() const, which returns the field's value.
#define READ_ONLY(TYPE, NAME)                                                                                \
    TYPE RECORD::NAME() const                                                                                \
    {                                                                                                        \
        return static_cast<TYPE>(fields.NAME);                                                               \
    }

/// Defines void NAME(TYPE), which stores a value.
#define WRITE_ONLY(TYPE, NAME)                                                                               \
    void RECORD::NAME(TYPE value)                                                                            \
    {                                                                                                        \
        fields.NAME = value;                                                                                 \
    }

#define READ_WRITE(TYPE, NAME) READ_ONLY(TYPE, NAME) WRITE_ONLY(TYPE, NAME)

/// Defines TYPE& NAME(), which returns the field itself.
#define REFERENCE(TYPE, NAME)                                                                                \
    TYPE& RECORD::NAME()                                                                                     \
    {                                                                                                        \
        return fields.NAME;                                                                                  \
    }

/// Defines TYPE* NAME(), which returns the field's address.
#define ADDRESS(TYPE, NAME)                                                                                  \
    TYPE* RECORD::NAME()                                                                                     \
    {                                                                                                        \
        return &fields.NAME;                                                                                 \
    }

/// Defines bool QUESTION() const, which returns true if the list NAME is not empty.
#define NOT_EMPTY(QUESTION, NAME)                                                                            \
    bool RECORD::QUESTION() const                                                                            \
    {                                                                                                        \
        return !fields.NAME.IsEmpty();                                                                       \
    }

/// Defines void OPERATION(), which sets the flag NAME.
#define RAISE(OPERATION, NAME)                                                                               \
    void RECORD::OPERATION()                                                                                 \
    {                                                                                                        \
        fields.NAME = 1;                                                                                     \
    }

/// Defines void OPERATION(), which resets the request NAME to its idle value.
#define DONE(OPERATION, NAME)                                                                                \
    void RECORD::OPERATION()                                                                                 \
    {                                                                                                        \
        fields.NAME.done();                                                                                  \
    }

/// Defines the accessors of a request: NAME() returns it and DoneNAME() resets it.
#define REQUEST(TYPE, NAME) READ_ONLY(TYPE, NAME) DONE(Done##NAME, NAME)

/// Defines the accessors of a list's request to be redrawn: WHATChanged() returns it, UpdateWHATScreen() sets
/// it and DoneWHATScreen() resets it.
#define SCREEN_REQUEST(WHAT)                                                                                 \
    READ_ONLY(bool, WHAT##Changed)                                                                           \
    RAISE(Update##WHAT##Screen, WHAT##Changed)                                                               \
    DONE(Done##WHAT##Screen, WHAT##Changed)
