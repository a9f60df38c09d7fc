#include <gtest/gtest.h>

#include <random>
#include <string>

#include "common_src/platform/TextCodec.h"
#include "lists/ListKinds.h"
#include "lists/ListText.h"
#include "lists/ValueCodec.h"

namespace Orva::Lists {
namespace {

// The file writer's encoder must give the bytes of the shared converter for every valid text.
TEST(AppendUtf8, EqualsTheSharedConverterOnRandomText) {
    std::mt19937 random(99);
    std::uniform_int_distribution<uint32_t> plane(0, 3);
    for (int round = 0; round < 2000; ++round) {
        std::wstring text;
        for (int i = 0; i < 20; ++i) {
            const uint32_t limits[] = {0x80, 0x800, 0xD7FF, 0x10FFFF};
            uint32_t c = std::uniform_int_distribution<uint32_t>(1, limits[plane(random)])(random);
            if (c >= 0xD800 && c <= 0xDFFF) {
                c = 0xE000;
            }
            if (c >= 0x10000 && sizeof(wchar_t) == 2) {
                c -= 0x10000;
                text.push_back(static_cast<wchar_t>(0xD800 + (c >> 10)));
                text.push_back(static_cast<wchar_t>(0xDC00 + (c & 0x3FF)));
            } else {
                text.push_back(static_cast<wchar_t>(c));
            }
        }
        std::string appended = "x";
        AppendUtf8(appended, text);
        std::string expected = ZelCommon::Text::WideToUtf8(text);
        expected.insert(expected.begin(), 'x');
        ASSERT_EQ(expected, appended);
        ASSERT_EQ(text, ZelCommon::Text::Utf8ToWide(appended.substr(1)));
    }
}

// The save's one-pass check and encoding must agree with the check and the encoder apart.
TEST(EncodeStorableValue, AgreesWithIsStorableValueAndEncodeUtf8) {
    static const std::wstring kPieces[] = {L"a",      L" ",         L"\t",         L"\n",
                                           L"<",      L"<SN_ATTR>", L"<\\BL_REC>", L"\u00e9",
                                           L"\u4e2d", L"\u0001",    L"\u007f",     L"\uFFFD"};
    std::mt19937 random(5);
    std::uniform_int_distribution<size_t> piece(0, std::size(kPieces) - 1);
    std::uniform_int_distribution<int> parts(0, 6);
    size_t storable = 0;
    for (int round = 0; round < 20000; ++round) {
        std::wstring value;
        for (int i = parts(random); i > 0; --i) {
            value += kPieces[piece(random)];
        }
        if (round % 50 == 0) {
            value.push_back(static_cast<wchar_t>(0xD800));
        }
        std::string encoded(value.size() * kMaxUtf8PerUnit, '\0');
        const char* end = EncodeStorableValue(value, encoded.data());
        ASSERT_EQ(IsStorableValue(value), end != nullptr) << testing::PrintToString(value);
        if (end != nullptr) {
            encoded.resize(static_cast<size_t>(end - encoded.data()));
            ASSERT_EQ(ZelCommon::Text::WideToUtf8(value), encoded);
            ++storable;
        }
    }
    EXPECT_GT(storable, 1000u);
    EXPECT_LT(storable, 19000u);
}

// The load's one-pass decoder must read every value as the shared decoder does, and refuse
// exactly the values that no save writes: blank ends, control characters but the tab, tags.
TEST(DecodeStoredValue, EqualsTheSharedDecoderAndTheStorableRule) {
    static const std::string kPieces[] = {
        "a",    "Z",         " ",          "\t",           "\r",           "\x01",
        "<",    "<SN_ATTR>", "<\\WL_REC>", "\xC3\xA9",     "\xE4\xB8\xAD", "\xF0\x9F\x98\x80",
        "\xC3", "\xE4\xB8",  "\xC0\xAF",   "\xED\xA0\x80", "\xE0\x80\xAF", "\xFF",
        "\x80", "*"};
    std::mt19937 random(11);
    std::uniform_int_distribution<size_t> piece(0, std::size(kPieces) - 1);
    std::uniform_int_distribution<int> parts(0, 6);
    size_t stored = 0;
    size_t asWritten = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string value;
        for (int i = parts(random); i > 0; --i) {
            value += kPieces[piece(random)];
        }
        bool storable = value == TrimTagBlanks(value);
        for (const char c : value) {
            storable &= static_cast<unsigned char>(c) >= 0x20 || c == '\t';
        }
        for (const std::string_view tag : kEveryTag) {
            storable &= value.find(tag) == std::string::npos;
        }
        std::wstring decoded = L"old";
        const ValueRead outcome = DecodeStoredValue(value, decoded);
        ASSERT_EQ(storable, outcome != ValueRead::Refused) << testing::PrintToString(value);
        if (storable) {
            ASSERT_EQ(ZelCommon::Text::Utf8ToWide(value), decoded) << testing::PrintToString(value);
            ++stored;
        }
        // A value read as written is written back as the same bytes, which lets a save copy
        // the line it came from.
        if (outcome == ValueRead::AsWritten) {
            std::string encoded(decoded.size() * kMaxUtf8PerUnit, '\0');
            const char* end = EncodeStorableValue(decoded, encoded.data());
            ASSERT_NE(nullptr, end);
            ASSERT_EQ(value,
                      std::string_view(encoded.data(), static_cast<size_t>(end - encoded.data())));
            ++asWritten;
        }
    }
    EXPECT_GT(stored, 1000u);
    EXPECT_LT(stored, 19000u);
    EXPECT_GT(asWritten, 500u);
}

}  // namespace
}  // namespace Orva::Lists
