#include <algorithm>
#include <string>
#include <vector>

#include "preferences/page.h"
#include "settings/adapter_values.h"
#include "toolkit/controls/lists.h"

namespace preferences {
namespace {

// The page that chooses which network adapters count. Its rows are those of the meter's menus and
// change with them.
class InterfacesPage final : public Page {
 public:
  InterfacesPage(toolkit::Notebook& notebook, Context& context)
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
        {NIMListBox, Below(kMargin, {kMargin, kMargin + 20, kWidth, kListHeight})},
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

  ~InterfacesPage() override { context_.meter.adapters.OnChange = nullptr; }

 private:
  static constexpr platform::TextStyle kValue{platform::TextAlign::kLeft};

  // Shows the present adapters and their stored values.
  void ReadAdapters() {
    const Context::Reading reading(context_);
    const std::vector<std::string> now = context_.meter.adapters.Descriptions();
    const std::vector<std::string>& before = NIMListBox.Items();
    if (now != before) {
      // The chosen adapter stays chosen, in whatever row it is; when none is chosen, the first one
      // is.
      const auto at = static_cast<std::size_t>(NIMListBox.ItemIndex());
      const std::string chosen = at < before.size() ? before[at] : std::string();
      NIMListBox.SetItems(now);
      const auto found = std::find(now.begin(), now.end(), chosen);
      NIMListBox.SetItemIndex(found == now.end() ? 0 : static_cast<int>(found - now.begin()));
    }
    for (int row = 0; row < NIMListBox.Count(); ++row) {
      // The flag is stored under the engine's name, which decides what counts. That name differs
      // from the one of the menus for a description with blanks at its ends.
      const std::string name = settings::AdapterName(now[static_cast<std::size_t>(row)]);
      NIMListBox.SetChecked(row, context_.store.ReadBool(name, true));
    }
    ShowWhetherAll();
    ShowData();
  }

  void NIMListBoxClickCheck(int row) {
    if (context_.IsReading()) return;
    Write(row, NIMListBox.Checked(row));
    const Context::Reading reading(context_);
    ShowWhetherAll();
  }

  void chkSelectALLClick() {
    if (context_.IsReading()) return;
    const Context::Reading reading(context_);
    for (int row = 0; row < NIMListBox.Count(); ++row) {
      NIMListBox.SetChecked(row, chkSelectALL.Checked());
      Write(row, chkSelectALL.Checked());
    }
  }

  void Write(int row, bool on) {
    context_.store.WriteBool(
        settings::AdapterName(NIMListBox.Items()[static_cast<std::size_t>(row)]), on);
    context_.meter.adapters.ReadTicks();
  }

  // Shows in the box for all whether all adapters are ticked; there may be no adapters.
  void ShowWhetherAll() {
    bool all = NIMListBox.Count() > 0;
    for (int row = 0; row < NIMListBox.Count(); ++row) all = all && NIMListBox.Checked(row);
    chkSelectALL.SetChecked(all);
  }

  // Shows the stored data of the chosen adapter.
  void ShowData() {
    const auto row = static_cast<std::size_t>(NIMListBox.ItemIndex());
    const bool chosen = row < NIMListBox.Items().size();
    const std::string name =
        chosen ? settings::AdapterName(NIMListBox.Items()[row]) : std::string();
    const auto show = [&](toolkit::Label& label, std::string_view suffix) {
      label.SetCaption(chosen ? context_.store.ReadString(settings::KeyIndex::kAdapterDatas,
                                                          name + std::string(suffix), "")
                              : std::string());
    };
    show(lblMacAddressValue, settings::kMacAddressSuffix);
    show(lblSpeedValue, settings::kSpeedSuffix);
    show(lblMTUValue, settings::kMtuSuffix);
  }

  Labelled<toolkit::CheckListBox> NIMListBox{*this, "lblInterfaces", "NIMListBox"};
  toolkit::CheckBox chkSelectALL{*this, "chkSelectALL"};
  toolkit::Label lblMacAddress{*this, "lblMacAddress", kValue};
  toolkit::Label lblMacAddressValue{*this, "lblMacAddressValue", kValue};
  toolkit::Label lblSpeed{*this, "lblSpeed", kValue};
  toolkit::Label lblSpeedValue{*this, "lblSpeedValue", kValue};
  toolkit::Label lblMTU{*this, "lblMTU", kValue};
  toolkit::Label lblMTUValue{*this, "lblMTUValue", kValue};
};

}  // namespace

std::unique_ptr<Page> MakeInterfacesPage(toolkit::Notebook& notebook, Context& context) {
  return std::make_unique<InterfacesPage>(notebook, context);
}

}  // namespace preferences
