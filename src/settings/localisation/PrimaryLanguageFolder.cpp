#include "settings/localisation/PrimaryLanguageFolder.h"

#include <algorithm>
#include <span>

#include "common_src/platform/Locale.h"

namespace Orva::Settings {
namespace {

struct LanguageFolder {
    uint16_t language;  // a primary language, or a whole language id
    const wchar_t* folder;
};

// Each primary language's main locale, without a sort order. 0x1A is Croatian, Bosnian and
// Serbian at once; only Croatian is served by its primary language alone.
constexpr LanguageFolder kPrimaryLanguages[] = {
    {0x01, L"ar-SA"},      {0x02, L"bg-BG"},  {0x03, L"ca-ES"},       {0x04, L"zh-CN"},
    {0x05, L"cs-CZ"},      {0x06, L"da-DK"},  {0x07, L"de-DE"},       {0x08, L"el-GR"},
    {0x09, L"en-US"},      {0x0A, L"es-ES"},  {0x0B, L"fi-FI"},       {0x0C, L"fr-FR"},
    {0x0D, L"he-IL"},      {0x0E, L"hu-HU"},  {0x0F, L"is-IS"},       {0x10, L"it-IT"},
    {0x11, L"ja-JP"},      {0x12, L"ko-KR"},  {0x13, L"nl-NL"},       {0x14, L"nb-NO"},
    {0x15, L"pl-PL"},      {0x16, L"pt-BR"},  {0x17, L"rm-CH"},       {0x18, L"ro-RO"},
    {0x19, L"ru-RU"},      {0x1A, L"hr-HR"},  {0x1B, L"sk-SK"},       {0x1C, L"sq-AL"},
    {0x1D, L"sv-SE"},      {0x1E, L"th-TH"},  {0x1F, L"tr-TR"},       {0x20, L"ur-PK"},
    {0x21, L"id-ID"},      {0x22, L"uk-UA"},  {0x23, L"be-BY"},       {0x24, L"sl-SI"},
    {0x25, L"et-EE"},      {0x26, L"lv-LV"},  {0x27, L"lt-LT"},       {0x28, L"tg-Cyrl-TJ"},
    {0x29, L"fa-IR"},      {0x2A, L"vi-VN"},  {0x2B, L"hy-AM"},       {0x2C, L"az-Latn-AZ"},
    {0x2D, L"eu-ES"},      {0x2E, L"hsb-DE"}, {0x2F, L"mk-MK"},       {0x30, L"st-ZA"},
    {0x31, L"ts-ZA"},      {0x32, L"tn-ZA"},  {0x33, L"ve-ZA"},       {0x34, L"xh-ZA"},
    {0x35, L"zu-ZA"},      {0x36, L"af-ZA"},  {0x37, L"ka-GE"},       {0x38, L"fo-FO"},
    {0x39, L"hi-IN"},      {0x3A, L"mt-MT"},  {0x3B, L"se-NO"},       {0x3C, L"ga-IE"},
    {0x3D, L"yi-001"},     {0x3E, L"ms-MY"},  {0x3F, L"kk-KZ"},       {0x40, L"ky-KG"},
    {0x41, L"sw-KE"},      {0x42, L"tk-TM"},  {0x43, L"uz-Latn-UZ"},  {0x44, L"tt-RU"},
    {0x45, L"bn-IN"},      {0x46, L"pa-IN"},  {0x47, L"gu-IN"},       {0x48, L"or-IN"},
    {0x49, L"ta-IN"},      {0x4A, L"te-IN"},  {0x4B, L"kn-IN"},       {0x4C, L"ml-IN"},
    {0x4D, L"as-IN"},      {0x4E, L"mr-IN"},  {0x4F, L"sa-IN"},       {0x50, L"mn-MN"},
    {0x51, L"bo-CN"},      {0x52, L"cy-GB"},  {0x53, L"km-KH"},       {0x54, L"lo-LA"},
    {0x55, L"my-MM"},      {0x56, L"gl-ES"},  {0x57, L"kok-IN"},      {0x58, L"mni-IN"},
    {0x59, L"sd-Arab-PK"}, {0x5A, L"syr-SY"}, {0x5B, L"si-LK"},       {0x5C, L"chr-Cher-US"},
    {0x5D, L"iu-Latn-CA"}, {0x5E, L"am-ET"},  {0x5F, L"tzm-Latn-DZ"}, {0x60, L"ks-Arab"},
    {0x61, L"ne-NP"},      {0x62, L"fy-NL"},  {0x63, L"ps-AF"},       {0x64, L"fil-PH"},
    {0x65, L"dv-MV"},      {0x66, L"bin-NG"}, {0x67, L"ff-Latn-SN"},  {0x68, L"ha-Latn-NG"},
    {0x69, L"ibb-NG"},     {0x6A, L"yo-NG"},  {0x6B, L"quz-BO"},      {0x6C, L"nso-ZA"},
    {0x6D, L"ba-RU"},      {0x6E, L"lb-LU"},  {0x6F, L"kl-GL"},       {0x70, L"ig-NG"},
    {0x71, L"kr-Latn-NG"}, {0x72, L"om-ET"},  {0x73, L"ti-ET"},       {0x74, L"gn-PY"},
    {0x75, L"haw-US"},     {0x76, L"la-VA"},  {0x77, L"so-SO"},       {0x78, L"ii-CN"},
    {0x79, L"pap-029"},    {0x7A, L"arn-CL"}, {0x7C, L"moh-CA"},      {0x7E, L"br-FR"},
    {0x80, L"ug-CN"},      {0x81, L"mi-NZ"},  {0x82, L"oc-FR"},       {0x83, L"co-FR"},
    {0x84, L"gsw-FR"},     {0x85, L"sah-RU"}, {0x86, L"quc-Latn-GT"}, {0x87, L"rw-RW"},
    {0x88, L"wo-SN"},      {0x8C, L"prs-AF"}, {0x91, L"gd-GB"},       {0x92, L"ku-Arab-IQ"},
};

// The language ids whose script (or, under 0x1A, whose language) differs from their primary
// language's main locale: a reader of Traditional Chinese or of Cyrillic Serbian is better
// served by the same script in another country than by the main locale.
constexpr LanguageFolder kOtherScripts[] = {
    {0x0404, L"zh-TW"},       {0x0C04, L"zh-TW"},      {0x1404, L"zh-TW"},
    {0x7C04, L"zh-TW"},       {0x081A, L"sr-Latn-RS"}, {0x181A, L"sr-Latn-RS"},
    {0x241A, L"sr-Latn-RS"},  {0x2C1A, L"sr-Latn-RS"}, {0x701A, L"sr-Latn-RS"},
    {0x7C1A, L"sr-Latn-RS"},  {0x0C1A, L"sr-Cyrl-RS"}, {0x1C1A, L"sr-Cyrl-RS"},
    {0x281A, L"sr-Cyrl-RS"},  {0x301A, L"sr-Cyrl-RS"}, {0x6C1A, L"sr-Cyrl-RS"},
    {0x141A, L"bs-Latn-BA"},  {0x681A, L"bs-Latn-BA"}, {0x781A, L"bs-Latn-BA"},
    {0x201A, L"bs-Cyrl-BA"},  {0x641A, L"bs-Cyrl-BA"}, {0x082C, L"az-Cyrl-AZ"},
    {0x742C, L"az-Cyrl-AZ"},  {0x0843, L"uz-Cyrl-UZ"}, {0x7843, L"uz-Cyrl-UZ"},
    {0x0846, L"pa-Arab-PK"},  {0x7C46, L"pa-Arab-PK"}, {0x0850, L"mn-Mong-CN"},
    {0x0C50, L"mn-Mong-CN"},  {0x7C50, L"mn-Mong-CN"}, {0x0459, L"sd-Deva-IN"},
    {0x045D, L"iu-Cans-CA"},  {0x785D, L"iu-Cans-CA"}, {0x045F, L"tzm-Arab-MA"},
    {0x105F, L"tzm-Tfng-MA"}, {0x0860, L"ks-Deva-IN"},
};

std::wstring_view FolderOf(std::span<const LanguageFolder> table, uint16_t language) {
    const auto found = std::ranges::find(table, language, &LanguageFolder::language);
    return found == table.end() ? std::wstring_view() : std::wstring_view(found->folder);
}

}  // namespace

std::wstring_view PrimaryLanguageFolder(uint32_t lcid) {
    // The sort order in the high bits never changes the folder.
    const std::wstring_view ofScript =
        FolderOf(kOtherScripts, static_cast<uint16_t>(lcid & 0xFFFFu));
    return ofScript.empty()
               ? FolderOf(kPrimaryLanguages, ZelCommon::Platform::PrimaryLanguageOf(lcid))
               : ofScript;
}

}  // namespace Orva::Settings
