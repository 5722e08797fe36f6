// The page "Interfaces": which network adapters count.
#pragma once

#include "preferences/page.h"
#include "toolkit/controls/check_list_box.h"

namespace preferences {

// Its rows are those of the meter's menus and come and go with them.
class InterfacesPage final : public Page {
 public:
  InterfacesPage(toolkit::Notebook& notebook, Context& context);
  ~InterfacesPage() override;

 private:
  static constexpr platform::TextStyle kValue{platform::TextAlign::kLeft};

  // Shows the adapters that there are now, and what is stored of them.
  void ReadAdapters();
  void NIMListBoxClickCheck(int row);
  void chkSelectALLClick();
  void Write(int row, bool on);
  // Whether all are ticked; there may be none.
  void ShowWhetherAll();
  // The stored data of the chosen adapter.
  void ShowData();

  Labelled<toolkit::CheckListBox> NIMListBox{*this, "lblInterfaces", "NIMListBox"};
  toolkit::CheckBox chkSelectALL{*this, "chkSelectALL"};
  toolkit::Label lblMacAddress{*this, "lblMacAddress", kValue};
  toolkit::Label lblMacAddressValue{*this, "lblMacAddressValue", kValue};
  toolkit::Label lblSpeed{*this, "lblSpeed", kValue};
  toolkit::Label lblSpeedValue{*this, "lblSpeedValue", kValue};
  toolkit::Label lblMTU{*this, "lblMTU", kValue};
  toolkit::Label lblMTUValue{*this, "lblMTUValue", kValue};
};

}  // namespace preferences
