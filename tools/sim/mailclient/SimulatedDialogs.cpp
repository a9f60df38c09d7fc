#include "SimulatedDialogs.h"

#include <utility>

#include "common_src/platform/WideFormat.h"
#include "lists/SenderLists.h"
#include "ui/ContactImportRun.h"

namespace Orva::Sim {
namespace {

using ZelCommon::Fakes::FakeJournal;

class JournalProgress final : public Orva::Ui::IImportProgress {
public:
    explicit JournalProgress(FakeJournal& journal) : m_journal(journal) {}
    void Open() override { m_journal.Add(L"import window open"); }
    void SetRange(int count) override {
        m_journal.Add(ZelCommon::Text::Format(L"import window range 0..%d", count));
    }
    void ShowAddress(const std::wstring& address) override {
        m_journal.Add(L"import window shows " + address);
    }
    void Step() override {}
    bool Cancelled() override { return false; }
    void Close() override { m_journal.Add(L"import window closed"); }

private:
    FakeJournal& m_journal;
};

// The user answers every question with Yes.
class JournalBoxes final : public Orva::Ui::IMessageBoxes {
public:
    explicit JournalBoxes(FakeJournal& journal) : m_journal(journal) {}
    Orva::Ui::BoxAnswer Show(ZelCommon::Platform::WindowHandle, const std::wstring& text,
                             const std::wstring&, uint32_t) override {
        m_journal.Add(L"message box \"" + text + L"\": Yes");
        return Orva::Ui::BoxAnswer::Yes;
    }

private:
    FakeJournal& m_journal;
};

}  // namespace

SimulatedDialogs::SimulatedDialogs(Orva::Plugin::ICommandDialogs& others, SimulatedProcess& process,
                                   Orva::Settings::ILocalisedStrings& strings,
                                   std::wstring dataFolder)
    : m_others(others),
      m_process(process),
      m_strings(strings),
      m_dataFolder(std::move(dataFolder)) {}

void SimulatedDialogs::ImportContacts() {
    JournalProgress progress(m_process.journal);
    JournalBoxes boxes(m_process.journal);
    const Orva::Ui::ContactImportOutcome outcome =
        Orva::Ui::ImportContactList({m_process.contacts, progress, boxes, m_strings,
                                     m_process.messaging, m_process.process, m_process.log},
                                    Orva::Lists::SenderListPathsIn(m_dataFolder));
    m_process.journal.Add(ZelCommon::Text::Format(L"import added %d, saved %s", outcome.added,
                                                  outcome.saved ? L"yes" : L"no"));
}

}  // namespace Orva::Sim
