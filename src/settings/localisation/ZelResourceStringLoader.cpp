#include "settings/localisation/ZelResourceStringLoader.h"

#include <utility>

#include "common_src/ZelCommon/StorageException.h"
#include "common_src/platform/Path.h"
#include "common_src/platform/TextCodec.h"
#include "settings/localisation/StringEscapes.h"

using ZelCommon::Exception::CatchThrown;
using ZelCommon::Storage::Exception;

ZelResourceStringLoader::ZelResourceStringLoader(Orva::Settings::StringLoaderServices services)
    : m_services(std::move(services)), m_table(m_services.profile) {
    Log(L"[Enter] %s()...", L"ZelResourceStringLoader::ZelResourceStringLoader");
    Log(L"[Leave] %s()...", L"ZelResourceStringLoader::ZelResourceStringLoader");
}

ZelResourceStringLoader::~ZelResourceStringLoader() {
    Log(L"[Enter] %s()...", L"ZelResourceStringLoader::~ZelResourceStringLoader");
    UnInitialize();
    Log(L"[Leave] %s()...", L"ZelResourceStringLoader::~ZelResourceStringLoader");
}

bool ZelResourceStringLoader::Initialize(const std::wstring& section) {
    m_succeeded = false;
    try {
        if (section.empty()) {
            Log(L"*** Error: Length of _tszSectionName is zero.");
            return false;
        }
        UnInitialize();
        const LanguageChoice choice = ChooseTable(GetResourcePath());
        if (!choice.found) {
            Log(L"*** Error occurred!! <%s> StringTable is not existed: [%s]", choice.localeName,
                choice.path);
            return false;
        }
        m_localeName = choice.localeName;
        m_tablePath = choice.path;
        if (!OpenTable(section)) {
            Log(L"*** Error occurred!! Read stringTable failed. Lang.: [%s], File: [%s]",
                m_localeName, m_tablePath);
            return false;
        }
        m_section = section;
        Log(L"Successfully loaded MUI stringTable. Lang: [%s], Section: [%s], File: [%s]",
            m_localeName, m_section, m_tablePath);
        m_succeeded = true;
    } catch (...) {
        // Out of memory and the like: the caller falls back to its built-in texts.
        m_table.Close(false);
        m_succeeded = false;
    }
    return m_succeeded;
}

// The table counts as read when its file lists the section: a table without the consumer's
// section would answer every id with nothing.
bool ZelResourceStringLoader::OpenTable(const std::wstring& section) {
    bool hasSection = false;
    const bool completed = CatchThrown<Exception>(
        [&] {
            m_table.Open(m_tablePath, section, 0);
            ZelCommon::Storage::StringList sections;
            m_table.EnumKeys(sections);
            for (const std::wstring& name : sections) {
                hasSection = hasSection ||
                             ZelCommon::Text::ToLower(name) == ZelCommon::Text::ToLower(section);
            }
        },
        [this](const Exception& failure) { LogStorageFailure(failure); });
    if (!completed || !hasSection) {
        m_table.Close(false);
        return false;
    }
    return true;
}

void ZelResourceStringLoader::UnInitialize() {
    CatchThrown<Exception>([this] { m_table.Close(false); },
                           [this](const Exception& failure) { LogStorageFailure(failure); });
    m_section.clear();
}

std::wstring ZelResourceStringLoader::LoadString(const std::wstring& id) {
    m_succeeded = false;
    if (id.empty()) {
        Log(L"*** Error! Load empty string ID.");
        return {};
    }
    try {
        std::wstring text;
        const bool completed = CatchThrown<Exception>(
            [&] {
                const std::wstring stored = m_table.GetString(id, std::wstring());
                if (stored.empty()) {
                    Log(L"*** Error! Get string failed. ID: [%s]", id);
                }
                text = Orva::Settings::ExpandStringEscapes(stored);
            },
            [this](const Exception& failure) {
                Log(L"*** ZelCommon::Storage::Exception(): [0x%08x]", failure.ErrorCode());
            });
        if (!completed) {
            return {};
        }
        m_lastString = std::move(text);
        m_succeeded = true;
        Log(L"<%s> String loaded.", id);
        return m_lastString;
    } catch (...) {
        return {};
    }
}

void ZelResourceStringLoader::LogStorageFailure(const Exception& failure) {
    Log(L"ZelCommon::Storage::Exception - ln(%u), er(0x%08X)", failure.SourceLine(),
        failure.ErrorCode());
}
