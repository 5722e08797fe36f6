// The page "Interfaces": which network adapters count.
#pragma once

#include <string>
#include <vector>

#include "preferences/page.h"
#include "toolkit/controls/check_box.h"
#include "toolkit/controls/check_list_box.h"
#include "toolkit/controls/label.h"

namespace preferences {

// Its rows are those of the meter's menus and come and go with them.
class InterfacesPage final : public Page {
 public:
  InterfacesPage(toolkit::Notebook& notebook, Context& context);
  ~InterfacesPage() override;

  void Localise(const language::Translation& say) override;

  // Shows the adapters that there are now, and what is stored of them.
  void Read();

 private:
  void NIMListBoxClickCheck(int row);
  void chkSelectALLClick();
  void Write(int row, bool on);
  // Whether all are ticked; there may be none.
  void ShowWhetherAll();
  // The stored data of the chosen adapter.
  void ShowData();

  toolkit::Label lblInterfaces;
  toolkit::CheckListBox NIMListBox;
  toolkit::CheckBox chkSelectALL;
  toolkit::Label lblMacAddress, lblMacAddressValue;
  toolkit::Label lblSpeed, lblSpeedValue;
  toolkit::Label lblMTU, lblMTUValue;
};

}  // namespace preferences
