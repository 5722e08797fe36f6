#include "preferences/interfaces_page.h"

#include <algorithm>
#include <string>
#include <vector>

#include "settings/adapter_values.h"

namespace preferences {

InterfacesPage::InterfacesPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "Interfaces", context) {
  constexpr int kListHeight = 200;
  constexpr int kBox = kMargin + 20 + kListHeight + kMargin;
  constexpr int kData = kBox + kRow + kMargin;
  constexpr int kLabelWidth = 120;
  const auto label = [](int row) { return Line(kData + row * kRow, kLabelWidth); };
  const auto value = [](int row) {
    constexpr int kLeft = kMargin + kLabelWidth + kMargin;
    return Place{kLeft, kData + row * kRow, kPageWidth - kMargin - kLeft, kBoxHeight};
  };
  Add({
      {NIMListBox, {{kMargin, kMargin + 20, kWidth, kListHeight}, Line(kMargin).control}},
      {chkSelectALL, Line(kBox)},
      {lblMacAddress, label(0)},
      {lblMacAddressValue, value(0)},
      {lblSpeed, label(1)},
      {lblSpeedValue, value(1)},
      {lblMTU, label(2)},
      {lblMTUValue, value(2)},
  });
  Add(ReadStep::kInterfaces, [this] { ReadAdapters(); });
  NIMListBox.OnChange = [this] { ShowData(); };
  NIMListBox.OnClickCheck = [this](int row) { NIMListBoxClickCheck(row); };
  chkSelectALL.OnClick = [this] { chkSelectALLClick(); };
  context.meter.adapters.OnChange = [this] { ReadAdapters(); };
}

InterfacesPage::~InterfacesPage() { context_.meter.adapters.OnChange = nullptr; }

void InterfacesPage::ReadAdapters() {
  const Context::Reading reading(context_);
  const std::vector<std::string> now = context_.meter.adapters.Descriptions();
  const std::vector<std::string>& before = NIMListBox.Items();
  if (now != before) {
    // The chosen adapter stays chosen, in whatever row it is; without one it is the first.
    const auto at = static_cast<std::size_t>(NIMListBox.ItemIndex());
    const std::string chosen = at < before.size() ? before[at] : std::string();
    NIMListBox.SetItems(now);
    const auto found = std::find(now.begin(), now.end(), chosen);
    NIMListBox.SetItemIndex(found == now.end() ? 0 : static_cast<int>(found - now.begin()));
  }
  for (int row = 0; row < NIMListBox.Count(); ++row) {
    // Under the engine's name, which decides what counts; it differs from that of the menus for a
    // description with blanks at its ends.
    const std::string name = settings::AdapterName(now[static_cast<std::size_t>(row)]);
    NIMListBox.SetChecked(row, context_.store.ReadBool(name, true));
  }
  ShowWhetherAll();
  ShowData();
}

void InterfacesPage::NIMListBoxClickCheck(int row) {
  if (context_.IsReading()) return;
  Write(row, NIMListBox.Checked(row));
  const Context::Reading reading(context_);
  ShowWhetherAll();
}

void InterfacesPage::chkSelectALLClick() {
  if (context_.IsReading()) return;
  const Context::Reading reading(context_);
  for (int row = 0; row < NIMListBox.Count(); ++row) {
    NIMListBox.SetChecked(row, chkSelectALL.Checked());
    Write(row, chkSelectALL.Checked());
  }
}

void InterfacesPage::Write(int row, bool on) {
  context_.store.WriteBool(settings::AdapterName(NIMListBox.Items()[static_cast<std::size_t>(row)]),
                           on);
  context_.meter.adapters.ReadTicks();
}

void InterfacesPage::ShowWhetherAll() {
  bool all = NIMListBox.Count() > 0;
  for (int row = 0; row < NIMListBox.Count(); ++row) all = all && NIMListBox.Checked(row);
  chkSelectALL.SetChecked(all);
}

void InterfacesPage::ShowData() {
  const auto row = static_cast<std::size_t>(NIMListBox.ItemIndex());
  const bool chosen = row < NIMListBox.Items().size();
  const std::string name = chosen ? settings::AdapterName(NIMListBox.Items()[row]) : std::string();
  const auto show = [&](toolkit::Label& label, std::string_view suffix) {
    label.SetCaption(chosen ? context_.store.ReadString(settings::KeyIndex::kAdapterDatas,
                                                        name + std::string(suffix), "")
                            : std::string());
  };
  show(lblMacAddressValue, settings::kMacAddressSuffix);
  show(lblSpeedValue, settings::kSpeedSuffix);
  show(lblMTUValue, settings::kMtuSuffix);
}

}  // namespace preferences
