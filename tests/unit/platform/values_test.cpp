// Fixed-point operators, strings, resources and messages to the user.

#include "platform/display/message.h"
#include "platform/display/message_text.h"
#include "platform/display/msgbox.h"
#include "platform/framework/carray.h"
#include "platform/framework/cstring.h"
#include "platform/framework/extension.h"
#include "platform/framework/znfixed.h"
#include "platform/host/headless/headless_host.h"
#include "platform/media/encoding.h"
#include "platform/system/clock.h"
#include "platform/system/module.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

ZnFixed raw(int value)
{
    return ZnFixed::fromRaw(value);
}

TEST(ZnFixed, roundsToTheNearestAndSaturates)
{
    const struct {
        const char* name;
        ZnFixed result;
        int expected;
    } rows[] = {
        {"product with more than 32 bits before rounding", ZnFixed::fromInt(1000) * ZnFixed::fromInt(100),
         100000 * 4096},
        {"half rounds up", raw(1) * raw(2048), 1},
        {"half rounds down below zero", raw(-1) * raw(2048), -1},
        {"less than half is dropped", raw(1) * raw(2047), 0},
        {"33 of 100 columns", ZnFixed::fromInt(100) * (ZnFixed::fromInt(33) / ZnFixed::fromInt(100)),
         135168 + 32},
        {"product too large", raw(INT_MAX) * raw(INT_MAX), INT_MAX},
        {"product too small", raw(INT_MIN) * raw(INT_MAX), INT_MIN},
        {"the two smallest", raw(INT_MIN) * raw(INT_MIN), INT_MAX},
        {"a third", ZnFixed::fromInt(1) / ZnFixed::fromInt(3), 1365},
        {"two thirds below zero", ZnFixed::fromInt(2) / ZnFixed::fromInt(-3), -2731},
        {"half of the smallest step", raw(1) / ZnFixed::fromInt(2), 1},
        {"quotient too large", raw(INT_MAX) / raw(1), INT_MAX},
        {"quotient too small", raw(INT_MIN) / raw(1), INT_MIN},
        {"division by zero", ZnFixed::fromInt(5) / raw(0), 0},
        {"an int is a whole number", 10 / ZnFixed::fromInt(4), 10240},
        {"smallest int by the smallest step", INT_MIN / raw(-1), INT_MAX},
        {"int by zero", 7 / raw(0), 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.result.raw, row.expected);
    }
    EXPECT_EQ(raw(-1).toInt(), 0);
    EXPECT_EQ(raw(-4097).toInt(), -1);
}

TEST(CString, partsAndPositionsAreLimitedToTheString)
{
    const CString text("harbour");
    EXPECT_EQ(text.Left(99), "harbour");
    EXPECT_EQ(text.Left(-1), "");
    EXPECT_EQ(text.Right(4), "bour");
    EXPECT_EQ(text.Mid(3, 99), "bour");
    EXPECT_EQ(text.Mid(99), "");
    EXPECT_EQ(text.Find("bo", 4), -1);
    EXPECT_EQ(text.ReverseFind('r'), 6);
    EXPECT_THROW(text.GetAt(7), CInvalidArgException);
    EXPECT_LT(CString::compareNoCase("Quay", "quays"), 0);
    EXPECT_TRUE(CString::equalNoCase("QUAY", "quay"));
    EXPECT_FALSE(CString::equalNoCase("\xC4", "\xE4")) << "case is ignored only for A to Z";

    CString line("part");
    line.Format("%s of %s", static_cast<const char*>(line), std::string(3000, 'x').c_str());
    EXPECT_EQ(line.GetLength(), 3008);
    EXPECT_EQ(line.Left(9), "part of x") << "an argument may be the string itself";
}

TEST(CArray, aBadIndexThrowsAndChangesNothing)
{
    CArray<int, int> numbers;
    numbers.Add(1);
    EXPECT_THROW(numbers.InsertAt(2, 5), CInvalidArgException);
    EXPECT_THROW(numbers.RemoveAt(0, 2), CInvalidArgException);
    EXPECT_THROW(numbers.SetAt(-1, 5), CInvalidArgException);
    ASSERT_EQ(numbers.GetSize(), 1);
    EXPECT_EQ(numbers[0], 1);
}

TEST(Resources, areFoundByTypeAndTheLow16BitsOfTheId)
{
    static const unsigned char bytes[] = {1, 2, 3};
    const HINSTANCE executable = GetModuleHandleA(nullptr);
    {
        const EmbeddedResource script("TGXScript", 0x1008D, bytes, sizeof bytes);
        const HRSRC found = FindResourceA(executable, MAKEINTRESOURCEA(141), "TGXScript");
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(LockResource(LoadResource(executable, found)), bytes);
        EXPECT_EQ(SizeofResource(executable, found), 3u);
        EXPECT_EQ(FindResourceA(executable, MAKEINTRESOURCEA(141), "tgxscript"), nullptr);
        EXPECT_EQ(FindResourceA(executable, "141", "TGXScript"), nullptr);
        EXPECT_EQ(FindResourceA(GetModuleHandleA("other"), MAKEINTRESOURCEA(141), "TGXScript"), nullptr);
    }
    EXPECT_EQ(FindResourceA(executable, MAKEINTRESOURCEA(141), "TGXScript"), nullptr)
        << "the resource is removed with its object";
}

TEST(Extension, aLibraryRegistersOnce)
{
    AFX_EXTENSION_MODULE module;
    EXPECT_EQ(AfxInitExtensionModule(module), 1);
    EXPECT_EQ(AfxInitExtensionModule(module), 0);
    AfxTermExtensionModule(module);
    EXPECT_EQ(AfxInitExtensionModule(module), 1);
}

TEST(Clock, virtualTimeChangesOnlyByCalls)
{
    setVirtualTime(0xFFFFFFFE);
    EXPECT_EQ(timeGetTime(), 0xFFFFFFFE);
    advanceVirtualTime(3);
    EXPECT_EQ(timeGetTime(), 1u) << "it wraps like the real clock";
    useRealTime();
}

TEST(Messages, reachTheHostComplete)
{
    auto headless = std::make_unique<HeadlessHost>();
    std::vector<std::string> shown;
    headless->onMessage = [&](const CString& text) { shown.push_back(text.str()); };
    auto before = displayhost::use(std::move(headless));

    const std::string longName(5000, 'n');
    MsgBox("line %d of %s: 100%%", -3, longName.c_str());
    MessageBoxA(nullptr, "50%d\n", "caption", MB_SYSTEMMODAL);
    EXPECT_EQ(shown, (std::vector<std::string>{"line -3 of " + longName + ": 100%", "50%d\n"}));

    EXPECT_EQ(PostMessageA(nullptr, WM_CLOSE, 0, 0), 0);
    EXPECT_FALSE(displayhost::current().closeRequested);
    displayhost::use(std::move(before));
}

TEST(Messages, arePrintedOnOneLine)
{
    testing::internal::CaptureStderr();
    HeadlessHost().showMessage(CString("a\n\tb\\\r\x7F\xE9\0z", 10));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "message: a\\n\\tb\\\\u000d\\u007f\\u00e9\\u0000z\n");
}

TEST(Messages, aCauseIsPrintedOnlyAfterTheFirstMessage)
{
    testing::internal::CaptureStderr();
    HeadlessHost host;
    for (const char* text : {"a", "b"})
        host.showFailure(text, "no folder x");
    host.showFailure("c", "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "message: a\nnote: no folder x\nmessage: b\nmessage: c\n");
}

TEST(Messages, aBoxListsTwentyAndCountsTheRest)
{
    EXPECT_EQ(boxText({"one", "two"}), "one\ntwo");
    const std::string full = boxText(std::vector<std::string>(20, "m"));
    EXPECT_EQ(full.size(), 39u);
    EXPECT_EQ(boxText(std::vector<std::string>(23, "m")), full + "\nand 3 more");
    EXPECT_EQ(boxText({std::string(200, 'a'), std::string(201, 'b')}),
              std::string(200, 'a') + "\n" + std::string(200, 'b') + "...");
}

TEST(CodePage, convertsToAndFromUtf8)
{
    std::string_view typed = "e\xC3\xA9\xE2\x82\xAC\xE4\xB8\xAD\xFF";
    std::string kept;
    while (!typed.empty()) {
        if (const auto character = to1252(takeUtf8(typed)))
            kept += *character;
    }
    EXPECT_EQ(kept, "e\xE9\x80") << "characters that the code page does not have are omitted";
    EXPECT_EQ(utf8From1252(kept), "e\xC3\xA9\xE2\x82\xAC");
    EXPECT_EQ(utf8From1252("\x81"), "\xEF\xBF\xBD");
}

} // namespace
