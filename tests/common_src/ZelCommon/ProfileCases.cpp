#include "ProfileCases.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>

#include "common_src/platform/TextCodec.h"
#include "support/FileBytes.h"
#include "support/TempFolder.h"

namespace ZelCommon::Storage::Testing {
namespace {

using namespace std::string_literals;
using After = ProfileCase::After;

constexpr size_t kGuardChars = 8;
constexpr wchar_t kFill = L'#';

// A settings file with the traps the add-in's own files can hold.
const std::string kSettings =
    "[Settings]\r\n"
    "Name=Alice\r\n"
    "Empty=\r\n"
    "  Spaced  =  padded value  \r\n"
    "Quoted=\"quoted\"\r\n"
    "Single='single'\r\n"
    "Half=\"half\r\n"
    "; Comment=ignored\r\n"
    "Bare\r\n"
    "Dup=first\r\n"
    "DUP=second\r\n"
    "[Other]\r\n"
    "Key=other\r\n"
    "[settings]\r\n"
    "Name=Bob\r\n"
    "Late=late\r\n";
const std::string kList = "[s]\r\na=1\r\n;c=2\r\nbare\r\nb=\r\n";
const std::string kTwoKeys = "[s]\r\nalpha=1\r\nbeta=2\r\n";
const std::string kNumbers =
    "[n]\r\nplain=42\r\nneg=-7\r\nplus=+9\r\nhex=0x1F\r\nHEX=0X1F\r\ntail=12abc\r\n"
    "word=abc\r\nempty=\r\nwrap=4294967297\r\nquoted=\" 17\"\r\nbin=0b101\r\noct=0o17\r\n"
    "long=123456789012345678901234567890123\r\nzero=0\r\nspaced=   -0x10\r\n";

ProfileCase Read(std::string name, std::string bytes, const wchar_t* section, const wchar_t* key,
                 const wchar_t* fallback, uint32_t size, uint32_t expected, std::wstring buffer) {
    ProfileCase c;
    c.name = std::move(name);
    c.bytes = std::move(bytes);
    c.call = ProfileCall::GetString;
    c.section = section;
    c.key = key;
    c.text = fallback;
    c.size = size;
    c.expectedReturn = expected;
    c.expectedBuffer = std::move(buffer);
    return c;
}

ProfileCase Int(std::string name, const wchar_t* key, int32_t fallback, uint32_t expected) {
    ProfileCase c;
    c.name = std::move(name);
    c.bytes = kNumbers;
    c.call = ProfileCall::GetInt;
    c.section = L"n";
    c.key = key;
    c.intDefault = fallback;
    c.expectedReturn = expected;
    return c;
}

ProfileCase Lines(std::string name, std::string bytes, const wchar_t* section, uint32_t size,
                  uint32_t expected, std::wstring buffer) {
    ProfileCase c = Read(std::move(name), std::move(bytes), section, nullptr, nullptr, size,
                         expected, std::move(buffer));
    c.call = ProfileCall::GetSection;
    return c;
}

ProfileCase Names(std::string name, std::string bytes, uint32_t size, uint32_t expected,
                  std::wstring buffer) {
    ProfileCase c = Read(std::move(name), std::move(bytes), nullptr, nullptr, nullptr, size,
                         expected, std::move(buffer));
    c.call = ProfileCall::GetSectionNames;
    return c;
}

ProfileCase Write(std::string name, std::string bytes, const wchar_t* section, const wchar_t* key,
                  const wchar_t* value, bool expected, After after,
                  std::string expectedBytes = {}) {
    ProfileCase c;
    c.name = std::move(name);
    c.bytes = std::move(bytes);
    c.call = ProfileCall::WriteString;
    c.section = section;
    c.key = key;
    c.text = value;
    c.expectedReturn = expected ? 1u : 0u;
    c.after = after;
    c.expectedBytes = std::move(expectedBytes);
    return c;
}

ProfileCase With(ProfileCase c, FileSetup setup, std::optional<uint32_t> lastError = {}) {
    c.setup = setup;
    c.expectedLastError = lastError;
    return c;
}

// A line far beyond 64K characters, then many sections.
std::string LongFile(const char* fifthValue) {
    std::string bytes = "[s]\r\nk=" + std::string(100000, 'x') + "\r\n";
    for (int i = 0; i < 2000; ++i) {
        bytes += "[n" + std::to_string(i) + "]\r\nk=" + (i == 5 ? fifthValue : "v") + "\r\n";
    }
    return bytes;
}

std::vector<ProfileCase> BuildCases() {
    const std::string longFile = LongFile("v");
    return {
        // Values
        Read("Value_Plain", kSettings, L"Settings", L"Name", L"d", 64, 5, L"Alice\0"s),
        Read("Value_NamesCaseBlind", kSettings, L"SETTINGS", L"nAmE", L"d", 64, 5, L"Alice\0"s),
        Read("Value_BlanksAroundKeyAndValueTrimmed", kSettings, L"Settings", L"Spaced", L"d", 64,
             12, L"padded value\0"s),
        Read("Value_BlanksAroundArgumentsIgnored", kSettings, L" \tSettings\t", L"  Name ", L"d",
             64, 5, L"Alice\0"s),
        Read("Value_EmptyValueIsNotDefault", kSettings, L"Settings", L"Empty", L"d", 64, 0, L"\0"s),
        Read("Value_DoubleQuotesRemoved", kSettings, L"Settings", L"Quoted", L"d", 64, 6,
             L"quoted\0"s),
        Read("Value_SingleQuotesRemoved", kSettings, L"Settings", L"Single", L"d", 64, 6,
             L"single\0"s),
        Read("Value_UnpairedQuoteKept", kSettings, L"Settings", L"Half", L"d", 64, 5, L"\"half\0"s),
        Read("Value_QuotedCutByBufferLosesOneMore", kSettings, L"Settings", L"Quoted", L"d", 7, 5,
             L"quote\0"s),
        Read("Value_QuotedFitsExactly", kSettings, L"Settings", L"Quoted", L"d", 8, 6,
             L"quoted\0"s),
        Read("Value_QuotedBufferTooSmallForClosingQuote", kSettings, L"Settings", L"Quoted", L"d",
             4, 3, L"quo\0"s),
        Read("Value_CutToSizeMinusOne", kSettings, L"Settings", L"Name", L"d", 4, 3, L"Ali\0"s),
        Read("Value_SizeOneGivesEmpty", kSettings, L"Settings", L"Name", L"d", 1, 0, L"\0#"s),
        Read("Value_SizeZeroTouchesNothing", kSettings, L"Settings", L"Name", L"d", 0, 0, L"#"s),
        Read("Value_CommentLineFoundByItsFullName", kSettings, L"Settings", L"; Comment", L"d", 64,
             7, L"ignored\0"s),
        Read("Value_LineWithoutEqualsGivesDefault", kSettings, L"Settings", L"Bare", L"d", 64, 1,
             L"d\0"s),
        Read("Value_FirstDuplicateKeyWins", kSettings, L"Settings", L"dup", L"d", 64, 5,
             L"first\0"s),
        Read("Value_OnlyFirstDuplicateSectionSearched", kSettings, L"settings", L"Late", L"d", 64,
             1, L"d\0"s),
        Read("Value_OtherSection", kSettings, L"Other", L"Key", L"d", 64, 5, L"other\0"s),
        Read("Value_MissingSectionGivesDefault", kSettings, L"Nope", L"Key", L"dflt", 64, 4,
             L"dflt\0"s),
        Read("Value_EmptyKeyMatchesNamelessLine", "[s]\r\n=nokey\r\n", L"s", L"", L"d", 64, 5,
             L"nokey\0"s),
        Read("Value_EmptyKeyAbsentGivesDefault", kSettings, L"Settings", L"", L"d", 64, 1, L"d\0"s),
        Read("Value_EmptySectionReadsLinesBeforeFirstHeader", "head=1\r\n[s]\r\nk=v\r\n", L"",
             L"head", L"d", 64, 1, L"1\0"s),
        Read("Value_InlineSemicolonKept", "[s]\r\nk=a ; b\r\n", L"s", L"k", L"d", 64, 5,
             L"a ; b\0"s),
        // Defaults
        Read("Default_MissingKey", kSettings, L"Settings", L"Nope", L"dflt", 64, 4, L"dflt\0"s),
        Read("Default_TrailingSpacesDropped", kSettings, L"Settings", L"Nope", L"dflt  ", 64, 4,
             L"dflt\0"s),
        Read("Default_AllSpacesKeepOne", kSettings, L"Settings", L"Nope", L"   ", 64, 1, L" \0"s),
        Read("Default_TrailingTabKept", kSettings, L"Settings", L"Nope", L"d\t", 64, 2, L"d\t\0"s),
        Read("Default_LeadingSpacesKept", kSettings, L"Settings", L"Nope", L"  x", 64, 3,
             L"  x\0"s),
        Read("Default_NullIsEmpty", kSettings, L"Settings", L"Nope", nullptr, 64, 0, L"\0"s),
        Read("Default_QuotesRemoved", kSettings, L"Settings", L"Nope", L"\"q\"", 64, 1, L"q\0"s),
        Read("Default_CutToSizeMinusOne", kSettings, L"Settings", L"Nope", L"default", 4, 3,
             L"def\0"s),
        // Files that are not there
        With(Read("Missing_FileGivesDefault", "", L"s", L"k", L"\"d\"", 64, 1, L"d\0"s),
             FileSetup::Missing, 2u),
        With(Read("Missing_FolderGivesDefaultWithQuotes", "", L"s", L"k", L"\"d\"", 64, 3,
                  L"\"d\"\0"s),
             FileSetup::MissingFolder, 3u),
        With(Read("Missing_PathIsFolderGivesDefault", "", L"s", L"k", L"d", 64, 1, L"d\0"s),
             FileSetup::Folder),
        // Key names (null key)
        Read("Keys_ListedWithoutCommentsAndBareLines", kList, L"s", nullptr, L"d", 64, 4,
             L"a\0b\0\0"s),
        Read("Keys_CutListEndsInTwoZeros", kTwoKeys, L"s", nullptr, L"d", 5, 3, L"alp\0\0"s),
        Read("Keys_ExactFitCountsAsCut", kTwoKeys, L"s", nullptr, L"d", 8, 6, L"alpha\0\0"s),
        Read("Keys_SizeTwoGivesDefault", kTwoKeys, L"s", nullptr, L"dd", 2, 1, L"d\0"s),
        Read("Keys_MissingSectionGivesDefault", kList, L"nope", nullptr, L"dd  ", 64, 4,
             L"dd  \0"s),
        Read("Keys_OnlyCommentsGivesDefault", "[s]\r\n;x=1\r\n", L"s", nullptr, L"\"d\"", 64, 1,
             L"d\0"s),
        // Section names
        Read("Names_NullSectionListsSections", kSettings, nullptr, nullptr, L"d", 64, 24,
             L"Settings\0Other\0settings\0\0"s),
        Names("Names_All", kSettings, 64, 24, L"Settings\0Other\0settings\0\0"s),
        Names("Names_FirstCut", kSettings, 10, 8, L"Settings\0\0"s),
        Names("Names_SecondCut", kSettings, 14, 12, L"Settings\0Oth\0\0"s),
        Names("Names_SizeTwo", kSettings, 2, 0, L"\0\0"s),
        Names("Names_SizeOne", kSettings, 1, 0, L"\0#"s),
        Names("Names_SizeZero", kSettings, 0, 0, L"#"s),
        Names("Names_NoSectionsWritesOneZero", "a=1\r\n", 10, 0, L"\0#"s),
        Names("Names_HeadersTrimmedAndCutAtLastBracket",
              "[ Spaced Name ]\r\n[a]b]\r\n[tail] junk\r\n[]\r\n[broken\r\n", 64, 21,
              L"Spaced Name\0a]b\0tail\0\0"s),
        Names("Names_Utf8BomNotPartOfName", "\xEF\xBB\xBF[S]\r\nk=v\r\n", 64, 2, L"S\0\0"s),
        With(Names("Names_MissingFile", "", 10, 0, L"\0#"s), FileSetup::Missing),
        With(Names("Names_MissingFolderTouchesNothing", "", 10, 0, L"#"s),
             FileSetup::MissingFolder),
        Names("Names_EmptyFile", "", 10, 0, L"\0#"s),
        // Section lines
        Lines("Lines_KeepBareLinesDropComments", kList, L"s", 64, 12, L"a=1\0bare\0b=\0\0"s),
        Lines("Lines_CutAfterValue", kTwoKeys, L"s", 10, 8, L"alpha=1\0\0"s),
        Lines("Lines_CutInsideValue", "[s]\r\nkey=longvalue\r\n", L"s", 8, 6, L"key=lo\0\0"s),
        Lines("Lines_SizeTwo", kList, L"s", 2, 0, L"\0#"s),
        Lines("Lines_DuplicateKeysAllListed", "[s]\r\nk=1\r\nK=2\r\n", L"s", 64, 8,
              L"k=1\0K=2\0\0"s),
        Lines("Lines_MissingSection", kList, L"nope", 10, 0, L"\0\0"s),
        Lines("Lines_SectionNameNotTrimmed", kList, L" s", 10, 0, L"\0\0"s),
        Lines("Lines_FirstDuplicateSectionOnly", "[a]\r\nx=1\r\n[A]\r\ny=2\r\n", L"a", 64, 4,
              L"x=1\0\0"s),
        Lines("Lines_ValuesKeepQuotes", "[s]\r\nq=\"v\"\r\n", L"s", 64, 6, L"q=\"v\"\0\0"s),
        Lines("Lines_SecondNamelessLineDropped", "[s]\r\n=v\r\n=w\r\nk=1\r\n", L"s", 64, 7,
              L"=v\0k=1\0\0"s),
        Lines("Lines_EmptySectionIsHead", "h=1\r\n[s]\r\n", L"", 64, 4, L"h=1\0\0"s),
        Lines("Lines_BrokenHeaderIsALine", "[s]\r\n[broken\r\nk=v\r\n", L"s", 64, 12,
              L"[broken\0k=v\0\0"s),
        Lines("Lines_CarriageReturnOnly", "[s]\rk=1\rj=2\r", L"s", 64, 8, L"k=1\0j=2\0\0"s),
        Lines("Lines_TabsAndCtrlZTrimmed", "[s]\r\n\tk\t=\tv\t\x1A\r\n", L"s", 64, 4, L"k=v\0\0"s),
        With(Lines("Lines_MissingFile", "", L"s", 10, 0, L"\0\0"s), FileSetup::Missing),
        // Encodings and damaged files
        Read("Encoding_Utf16Le", Utf16LeFile(L"[S]\r\nK=Gr\u00FC\u00DFe \u20AC\r\n"), L"s", L"k",
             L"d", 64, 7, L"Gr\u00FC\u00DFe \u20AC\0"s),
        Read("Encoding_Utf16Be", Utf16BeFile(L"[S]\r\nK=big\r\n"), L"s", L"k", L"d", 64, 3,
             L"big\0"s),
        Read("Encoding_Utf8Bom", "\xEF\xBB\xBF[S]\r\nK=caf\xC3\xA9\r\n", L"s", L"k", L"d", 64, 4,
             L"caf\u00E9\0"s),
        Read("Encoding_Utf16LeAsciiCaseBlind", Utf16LeFile(L"[\u00C4pfel]\r\nk=1\r\n"),
             L"\u00C4PFEL", L"K", L"d", 64, 1, L"1\0"s),
        Read("Encoding_NonAsciiLettersKeepTheirCase", Utf16LeFile(L"[\u00C4pfel]\r\nk=1\r\n"),
             L"\u00E4pfel", L"k", L"d", 64, 1, L"d\0"s),
        Read("Lines_LineFeedOnly", "[s]\nk=1\n", L"s", L"k", L"d", 64, 1, L"1\0"s),
        Read("Lines_MixedEndingsWithoutFinalBreak", "[s]\r\nk=1\nj=2", L"s", L"j", L"d", 64, 1,
             L"2\0"s),
        Read("Damaged_ZeroEndsValue", "[s]\r\nk=ab\0cd\r\n\x01\x02\x7F=\r\n"s, L"s", L"k", L"d", 64,
             2, L"ab\0"s),
        Read("Damaged_ZeroEndsKeyName", "[s]\r\nk\0x=1\r\n"s, L"s", L"k", L"d", 64, 1, L"1\0"s),
        Read("Damaged_BinaryBeforeHeader", "\x01\x02\x03\0\0\x7F\r\n[s]\r\nk=v\r\n"s, L"s", L"k",
             L"d", 64, 1, L"v\0"s),
        Read("Damaged_LoneUtf16Bom", "\xFF\xFE", L"s", L"k", L"d", 64, 1, L"d\0"s),
        Read("Damaged_OddLengthUtf16LastByteIgnored",
             "\xFF\xFE[\0s\0]\0\r\0\n\0k\0=\0v\0\r\0\n\0x"s, L"s", L"k", L"d", 64, 1, L"v\0"s),
        Read("Damaged_LoneSurrogateInUtf16", "\xFF\xFE[\0s\0]\0\n\0a\0=\0\x00\xD8\n\0k\0=\0v\0"s,
             L"s", L"k", L"d", 64, 1, L"v\0"s),
        Read("Damaged_InvalidUtf8AfterBomReplaced",
             "\xEF\xBB\xBF[s]\r\nbad=\xC3\x28\xFF\r\nk=v\r\n", L"s", L"bad", L"d", 64, 3,
             L"\uFFFD(\uFFFD\0"s),
        Names("Damaged_Utf8BomOnly", "\xEF\xBB\xBF", 8, 0, L"\0#"s),
        // Long lines and files
        Read("Long_LineCutToBuffer", longFile, L"s", L"k", L"d", 64, 63,
             std::wstring(63, L'x') + L'\0'),
        Read("Long_LastOfManySectionsFound", longFile, L"n1999", L"k", L"d", 64, 1, L"v\0"s),
        Write("Long_FileRewrittenWhole", longFile, L"n5", L"k", L"w", true, After::Bytes,
              LongFile("w")),
        // Numbers
        Int("Int_Plain", L"plain", 5, 42),
        Int("Int_Negative", L"neg", 5, static_cast<uint32_t>(-7)),
        Int("Int_Plus", L"plus", 5, 9),
        Int("Int_HexPrefix", L"hex", 5, 31),
        Int("Int_UpperHexPrefixStopsAtX", L"HEX", 5, 31),
        Int("Int_TrailingTextIgnored", L"tail", 5, 12),
        Int("Int_NonNumericIsZero", L"word", 5, 0),
        Int("Int_EmptyGivesDefault", L"empty", 5, 5),
        Int("Int_MissingGivesDefault", L"nope", -3, static_cast<uint32_t>(-3)),
        Int("Int_OverflowWraps", L"wrap", 5, 1),
        Int("Int_QuotedWithBlank", L"quoted", 5, 17),
        Int("Int_BinaryPrefix", L"bin", 5, 5),
        Int("Int_OctalPrefix", L"oct", 5, 15),
        Int("Int_LongValueCutAt29Digits", L"long", 5, 1849262357),
        Int("Int_ZeroIsNotDefault", L"zero", 5, 0),
        Int("Int_BlanksThenNegativeHex", L"spaced", 5, static_cast<uint32_t>(-16)),
        // Writes
        With(Write("Write_CreatesFileAndSection", "", L"S", L"K", L"V", true, After::Bytes,
                   "[S]\r\nK=V\r\n"),
             FileSetup::Missing),
        Write("Write_ReplacesValueInPlace", "[s]\r\na=1\r\nb=2\r\nc=3\r\n", L"S", L"B", L"22", true,
              After::Bytes, "[s]\r\na=1\r\nb=22\r\nc=3\r\n"),
        Write("Write_AppendsKeyAtEndOfItsSection", "[s]\r\na=1\r\n;tail\r\n[t]\r\nx=9\r\n", L"s",
              L"new", L"n", true, After::Bytes, "[s]\r\na=1\r\n;tail\r\nnew=n\r\n[t]\r\nx=9\r\n"),
        Write("Write_AppendsNewSectionAtEnd", "[s]\r\na=1\r\n", L"t", L"k", L"v", true,
              After::Bytes, "[s]\r\na=1\r\n[t]\r\nk=v\r\n"),
        Write("Write_RewritesLinesTrimmed", "  [s]  \r\n\r\n  a = 1  \r\n; note\r\n", L"s", L"b",
              L"2", true, After::Bytes, "[s]\r\na=1\r\n; note\r\nb=2\r\n"),
        Write("Write_ValueLosesLeadingBlanksOnly", "[s]\r\n", L"s", L"k", L" \t v  ", true,
              After::Bytes, "[s]\r\nk=v  \r\n"),
        Write("Write_NewNamesLoseLeadingBlanksOnly", "", L"  sec  ", L"  key  ", L"v", true,
              After::Bytes, "[sec  ]\r\nkey  =v\r\n"),
        Write("Write_SameValueLeavesFileAlone", "[s]\r\n a = 1 \r\n", L"s", L"a", L"1", true,
              After::Unchanged),
        Write("Write_ValueComparedWithCase", "[s]\r\na=x\r\n", L"s", L"a", L"X", true, After::Bytes,
              "[s]\r\na=X\r\n"),
        Write("Write_ExistingNameSpellingKept", "[Sec]\r\nKey=1\r\n", L"SEC", L"KEY", L"2", true,
              After::Bytes, "[Sec]\r\nKey=2\r\n"),
        Write("Write_GoesToFirstDuplicateSection", "[s]\r\na=1\r\n[S]\r\nb=2\r\n", L"S", L"b", L"3",
              true, After::Bytes, "[s]\r\na=1\r\nb=3\r\n[S]\r\nb=2\r\n"),
        Write("Write_EmptyValue", "[s]\r\n", L"s", L"k", L"", true, After::Bytes, "[s]\r\nk=\r\n"),
        Write("Write_BareLineGetsValue", "[s]\r\nbare\r\n", L"s", L"bare", L"1", true, After::Bytes,
              "[s]\r\nbare=1\r\n"),
        Write("Write_KeepsLinesBeforeFirstHeader", "h=1\r\n[s]\r\n", L"s", L"k", L"v", true,
              After::Bytes, "h=1\r\n[s]\r\nk=v\r\n"),
        Write("Write_EmptyFile", "", L"s", L"k", L"v", true, After::Bytes, "[s]\r\nk=v\r\n"),
        Write("Write_CarriageReturnFileRewrittenCrLf", "[s]\ra=1\r", L"s", L"a", L"2", true,
              After::Bytes, "[s]\r\na=2\r\n"),
        Write("Write_KeepsUtf16Le", Utf16LeFile(L"[s]\r\na=1\r\n"), L"s", L"b", L"\u20AC", true,
              After::Bytes, Utf16LeFile(L"[s]\r\na=1\r\nb=\u20AC\r\n")),
        Write("Write_KeepsUtf8Bom", "\xEF\xBB\xBF[s]\r\na=1\r\n", L"s", L"a", L"\u00E9", true,
              After::Bytes, "\xEF\xBB\xBF[s]\r\na=\xC3\xA9\r\n"),
        // Written on Windows in its ANSI code page: bytes that are not UTF-8 on the lines the
        // write does not touch, the last sequence cut by the end of the file.
        Write("Write_AnsiBytesOnOtherLinesKept",
              "[Gr\xFC\xDF]\r\nName=Ren\xE9\r\n[s]\r\nk=1\r\n"
              "note=\x80\xC3(\xC3\xA9\xC0\xAF\xED\xA0\x80\xF4\x90\x80\x80\xFF\r\nend=\xE2\x82",
              L"s", L"k", L"2", true, After::Bytes,
              "[Gr\xFC\xDF]\r\nName=Ren\xE9\r\n[s]\r\nk=2\r\n"
              "note=\x80\xC3(\xC3\xA9\xC0\xAF\xED\xA0\x80\xF4\x90\x80\x80\xFF\r\nend=\xE2\x82\r\n"),
        Write("Write_KeepsUtf16Be", Utf16BeFile(L"[s]\r\na=1\r\n"), L"s", L"a", L"2", true,
              After::Bytes, Utf16BeFile(L"[s]\r\na=2\r\n")),
        With(Write("Write_MissingFolderFails", "", L"s", L"k", L"v", false, After::Absent),
             FileSetup::MissingFolder, 3u),
        With(Write("Write_NullSectionFails", "[s]\r\na=1\r\n", nullptr, L"k", L"v", false,
                   After::Unchanged),
             FileSetup::Contents, 2u),
        With(Write("Write_AllNullCreatesNoFile", "", nullptr, nullptr, nullptr, false,
                   After::Absent),
             FileSetup::Missing),
        With(Write("Write_PathIsFolderFails", "", L"s", L"k", L"v", false, After::NotChecked),
             FileSetup::Folder, 5u),
        Write("Write_SectionAndKeyTrimmedForLookup", "[s]\r\na=1\r\n", L" s\t", L" a ", L"2", true,
              After::Bytes, "[s]\r\na=2\r\n"),
        Write("Write_LineBreakInValueWrittenAsIs", "[s]\r\n", L"s", L"k", L"a\r\nb=2", true,
              After::Bytes, "[s]\r\nk=a\r\nb=2\r\n"),
        Write("Write_EqualsInKeyWrittenAsIs", "[s]\r\n", L"s", L"k=x", L"v", true, After::Bytes,
              "[s]\r\nk=x=v\r\n"),
        Write("Write_AllNullOnlyFlushes", "[s]\r\n a = 1\r\n", nullptr, nullptr, nullptr, false,
              After::Unchanged),
        // Deletions
        Write("Delete_Key", "[s]\r\na=1\r\nb=2\r\n", L"S", L"A", nullptr, true, After::Bytes,
              "[s]\r\nb=2\r\n"),
        Write("Delete_AbsentKeyLeavesFileAlone", "[s]\r\n a = 1\r\n", L"s", L"b", nullptr, true,
              After::Unchanged),
        Write("Delete_KeyArgumentsNotTrimmed", "[s]\r\na=1\r\n", L"s", L" a", nullptr, true,
              After::Unchanged),
        Write("Delete_KeyFoundInLaterDuplicateSection", "[s]\r\na=1\r\n[S]\r\nb=2\r\n", L"s", L"b",
              nullptr, true, After::Bytes, "[s]\r\na=1\r\n[S]\r\n"),
        Write("Delete_Section", "[s]\r\na=1\r\n[t]\r\nb=2\r\n[u]\r\n", L"T", nullptr, nullptr, true,
              After::Bytes, "[s]\r\na=1\r\n[u]\r\n"),
        Write("Delete_FirstOfDuplicateSections", "[s]\r\na=1\r\n[S]\r\nb=2\r\n", L"s", nullptr,
              nullptr, true, After::Bytes, "[S]\r\nb=2\r\n"),
        Write("Delete_SectionArgumentNotTrimmed", "[s]\r\n a = 1\r\n", L" s", nullptr, nullptr,
              true, After::Unchanged),
        Write("Delete_AbsentSectionLeavesFileAlone", "[s]\r\n a = 1\r\n", L"t", nullptr, nullptr,
              true, After::Unchanged),
        With(Write("Delete_SectionOfMissingFile", "", L"s", nullptr, nullptr, true, After::Absent),
             FileSetup::Missing),
        With(Write("Delete_KeyOfMissingFile", "", L"s", L"k", nullptr, true, After::Absent),
             FileSetup::Missing),
        With(Write("Delete_SectionInMissingFolderFails", "", L"s", nullptr, nullptr, false,
                   After::Absent),
             FileSetup::MissingFolder),
    };
}

uint32_t Call(IProfileApi& api, const ProfileCase& c, wchar_t* buffer, const wchar_t* file) {
    switch (c.call) {
        case ProfileCall::GetString:
            return api.GetString(c.section, c.key, c.text, buffer, c.size, file);
        case ProfileCall::GetInt:
            return api.GetInt(c.section, c.key, c.intDefault, file);
        case ProfileCall::GetSection:
            return api.GetSection(c.section, buffer, c.size, file);
        case ProfileCall::GetSectionNames:
            return api.GetSectionNames(buffer, c.size, file);
        case ProfileCall::WriteString:
            return api.WriteString(c.section, c.key, c.text, file) ? 1u : 0u;
    }
    return 0;
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const ProfileCase& profileCase) {
    return out << profileCase.name;
}

std::string ProfileCaseName(const ::testing::TestParamInfo<ProfileCase>& param) {
    return param.param.name;
}

std::string Utf16LeFile(std::wstring_view text) {
    return "\xFF\xFE" + Text::WideToUtf16Le(text);
}

std::string Utf16BeFile(std::wstring_view text) {
    std::string bytes = Text::WideToUtf16Le(text);
    for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
        std::swap(bytes[i], bytes[i + 1]);
    }
    return "\xFE\xFF" + bytes;
}

const std::vector<ProfileCase>& ProfileCases() {
    static const std::vector<ProfileCase> cases = BuildCases();
    return cases;
}

const std::vector<ProfileCase>& TinyBufferEngineCases() {
    static const std::vector<ProfileCase> cases = {
        Lines("Tiny_LinesSizeOne", kTwoKeys, L"s", 1, 0, L"\0"s),
        Lines("Tiny_LinesSizeZero", kTwoKeys, L"s", 0, 0, L""s),
        Lines("Tiny_MissingSectionLinesSizeOne", kTwoKeys, L"x", 1, 0, L"\0"s),
        Read("Tiny_KeysSizeOne", kTwoKeys, L"s", nullptr, L"dd", 1, 0, L"\0"s),
    };
    return cases;
}

void RunProfileCase(IProfileApi& api, const ProfileCase& c, int repeats) {
    // A fresh folder per case: the Win32 functions cache files by path.
    Orva::Testing::TempFolder folder;
    const std::filesystem::path file = folder.Root() / "profile.ini";
    std::filesystem::path path = file;
    switch (c.setup) {
        case FileSetup::Contents:
            Orva::Testing::WriteFileBytes(path, c.bytes);
            break;
        case FileSetup::Missing:
            break;
        case FileSetup::MissingFolder:
            path = folder.Root() / "absent" / "profile.ini";
            break;
        case FileSetup::Folder:
            std::filesystem::create_directories(path);
            break;
    }
    const std::wstring name = path.wstring();
    const int calls = c.call == ProfileCall::WriteString ? 1 : repeats;
    for (int round = 0; round < calls; ++round) {
        SCOPED_TRACE("call " + std::to_string(round + 1));
        std::vector<wchar_t> storage(c.size + 2 * kGuardChars, kFill);
        wchar_t* buffer = storage.data() + kGuardChars;
        const uint32_t result = Call(api, c, buffer, name.c_str());
        const uint32_t lastError = api.LastError();
        EXPECT_EQ(result, c.expectedReturn);
        if (c.expectedLastError) {
            EXPECT_EQ(lastError, *c.expectedLastError);
        }
        const std::wstring_view written(
            buffer, std::min<size_t>(c.expectedBuffer.size(), c.size + kGuardChars));
        EXPECT_EQ(std::wstring(written), c.expectedBuffer);
        const std::wstring_view before(storage.data(), kGuardChars);
        const std::wstring_view after(buffer + c.size, kGuardChars);
        EXPECT_EQ(before, std::wstring(kGuardChars, kFill)) << "wrote before the buffer";
        EXPECT_EQ(after, std::wstring(kGuardChars, kFill)) << "wrote past the buffer";
    }
    const bool exists = std::filesystem::is_regular_file(path);
    switch (c.after) {
        case ProfileCase::After::NotChecked:
            break;
        case ProfileCase::After::Bytes:
        case ProfileCase::After::Unchanged:
            ASSERT_TRUE(exists) << "the file is missing";
            EXPECT_EQ(Orva::Testing::ReadFileBytes(path),
                      c.after == After::Bytes ? c.expectedBytes : c.bytes);
            break;
        case ProfileCase::After::Absent:
            EXPECT_FALSE(exists) << "a file was created";
            break;
    }
    if (c.call == ProfileCall::WriteString) {
        EXPECT_EQ(folder.FileCount(), std::filesystem::exists(file) ? 1u : 0u)
            << "a temporary file was left behind";
    }
}

}  // namespace ZelCommon::Storage::Testing
