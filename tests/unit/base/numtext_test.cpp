#include "tgx/base/numtext.h"

#include <gtest/gtest.h>

TEST(NumText, Ints)
{
    const struct {
        int value, grouped, ordinal;
        const char* text;
    } rows[] = {
        {0, 1, 0, "0"},
        {123, 1, 0, "123"},
        {1234, 1, 0, "1,234"},
        {1234567, 1, 0, "1,234,567"},
        {-123456, 1, 0, "-123,456"},
        {-123, 1, 0, "-123"},
        {1000, 1, 1, "1,000th"},
        {-1, 0, 1, "-1st"},
        {11, 0, 1, "11th"},
        {112, 0, 1, "112th"},
        {121, 0, 1, "121st"},
        {22, 0, 1, "22nd"},
        {3, 0, 1, "3rd"},
        {0, 0, 1, "0th"},
        {-2147483647 - 1, 1, 0, "-2,147,483,648"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(intToString(row.value, row.grouped, row.ordinal), row.text);
}

TEST(NumText, FixedPoint)
{
    const struct {
        int raw;
        const char* text;
    } rows[] = {
        {0, "  0.0"},       {1, "0.00"},     {4096, "1.00"},          {1024, "0.25"},
        {409600, "100.00"}, {-6144, "1.49"}, {2147483647, "5242.87"}, {205, "0.05"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(floatToString(ZnFixed::fromRaw(row.raw)), row.text) << row.raw;
}

TEST(NumText, Minutes)
{
    const struct {
        int minutes;
        const char* text;
    } rows[] = {{-5, "-5 mins"}, {0, "0 mins"},  {60, "60 mins"},
                {61, "1hr 1"},   {120, "2hr 0"}, {125, "2hr 5"}};
    for (const auto& row : rows)
        EXPECT_EQ(minutesToString(row.minutes), row.text);
}
