#pragma once

// Rows of the accessor tables. Each stands for one field of RECORD, the class whose table it is, and defines
// the accessors of the field's name. Flags are read as bool and short fields as int, whatever their width.

/// TYPE NAME() const: the field's value.
#define READ_ONLY(TYPE, NAME)                                                                                \
    TYPE RECORD::NAME() const                                                                                \
    {                                                                                                        \
        return static_cast<TYPE>(fields.NAME);                                                               \
    }

/// void NAME(TYPE): stores a value.
#define WRITE_ONLY(TYPE, NAME)                                                                               \
    void RECORD::NAME(TYPE value)                                                                            \
    {                                                                                                        \
        fields.NAME = value;                                                                                 \
    }

#define READ_WRITE(TYPE, NAME) READ_ONLY(TYPE, NAME) WRITE_ONLY(TYPE, NAME)

/// TYPE& NAME(): the field itself.
#define REFERENCE(TYPE, NAME)                                                                                \
    TYPE& RECORD::NAME()                                                                                     \
    {                                                                                                        \
        return fields.NAME;                                                                                  \
    }

/// TYPE* NAME(): where the field lies in the record.
#define ADDRESS(TYPE, NAME)                                                                                  \
    TYPE* RECORD::NAME()                                                                                     \
    {                                                                                                        \
        return &fields.NAME;                                                                                 \
    }

/// bool QUESTION() const: the list NAME is not empty.
#define NOT_EMPTY(QUESTION, NAME)                                                                            \
    bool RECORD::QUESTION() const                                                                            \
    {                                                                                                        \
        return !fields.NAME.IsEmpty();                                                                       \
    }

/// void OPERATION(): raises the flag NAME.
#define RAISE(OPERATION, NAME)                                                                               \
    void RECORD::OPERATION()                                                                                 \
    {                                                                                                        \
        fields.NAME = 1;                                                                                     \
    }

/// void OPERATION(): puts the request NAME back to its idle value.
#define DONE(OPERATION, NAME)                                                                                \
    void RECORD::OPERATION()                                                                                 \
    {                                                                                                        \
        fields.NAME.done();                                                                                  \
    }

/// A request: it is read by its name, and DoneNAME() puts it back.
#define REQUEST(TYPE, NAME) READ_ONLY(TYPE, NAME) DONE(Done##NAME, NAME)

/// A list to be shown anew: WHATChanged() reads it, UpdateWHATScreen() raises it, DoneWHATScreen() puts it
/// back.
#define SCREEN_REQUEST(WHAT)                                                                                 \
    READ_ONLY(bool, WHAT##Changed)                                                                           \
    RAISE(Update##WHAT##Screen, WHAT##Changed)                                                               \
    DONE(Done##WHAT##Screen, WHAT##Changed)
