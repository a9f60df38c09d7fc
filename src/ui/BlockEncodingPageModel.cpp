#include "ui/BlockEncodingPageModel.h"

#include <utility>

#include "lists/SenderLists.h"
#include "plugin/protocol/AgentProtocol.h"

namespace Orva::Ui {

CBlockEncodingPageModel::CBlockEncodingPageModel(PageServices& services, std::wstring dataFolder)
    : m_services(services), m_dataFolder(std::move(dataFolder)) {}

void CBlockEncodingPageModel::Load() {
    m_encodings.Load(Lists::EncodingsPath(m_dataFolder));
    m_names.clear();
    for (const auto& [name, group] : m_encodings.Groups()) {
        m_names.push_back(name);
    }
    m_loaded = true;
    m_modified = false;
}

std::vector<EncodingRow> CBlockEncodingPageModel::Rows() const {
    std::vector<EncodingRow> rows;
    rows.reserve(m_names.size());
    for (const std::wstring& name : m_names) {
        rows.push_back({name, m_encodings.Groups().at(name).blocked});
    }
    return rows;
}

bool CBlockEncodingPageModel::SetBlocked(std::size_t row, bool blocked) {
    if (row >= m_names.size()) {
        return false;
    }
    if (m_encodings.Groups().at(m_names[row]).blocked != blocked) {
        m_encodings.SetBlocked(m_names[row], blocked);
        m_modified = true;
    }
    return true;
}

// The agent rereads the file when told; telling it of a file that was not written would only
// make it read the old one again.
bool CBlockEncodingPageModel::Apply() {
    if (!m_loaded || !m_modified) {
        return false;
    }
    const std::wstring path = Lists::EncodingsPath(m_dataFolder);
    if (const uint32_t error = m_encodings.Save(path); error != 0) {
        m_services.log.LogText(L"xxx CBlockEncodingPage::OnApply() cannot write %s, error %u\n",
                               path, error);
        return false;
    }
    m_modified = false;
    m_services.agent.Notify(Plugin::AgentMessage::EncodingsChanged);
    return true;
}

}  // namespace Orva::Ui
