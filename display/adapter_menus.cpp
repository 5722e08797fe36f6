#include "display/adapter_menus.h"

#include "display/images.h"
#include "settings/adapter_values.h"

namespace display {
namespace {

toolkit::MenuItem& AddAdapter(toolkit::MenuItem& menu, const engine::AdapterItem& adapter) {
  toolkit::MenuItem& item = menu.Add(adapter.description);
  item.Literal = true;  // an ampersand in a description is part of the name
  item.Tag = adapter.row;
  return item;
}

}  // namespace

void AdapterMenus::Clear() {
  statistics_.Clear();
  sources_.Clear();
}

void AdapterMenus::Add(const std::vector<engine::AdapterItem>& adapters) {
  for (const engine::AdapterItem& adapter : adapters) {
    toolkit::MenuItem& source = AddAdapter(sources_, adapter);
    source.SetChecked(adapter.included);
    source.OnClick = [this, &source] { MyPopupHandler(source); };
    toolkit::MenuItem& statistics = AddAdapter(statistics_, adapter);
    statistics.ImageIndex = kAdapterImage;
    statistics.Enabled = OpenStatistics != nullptr;
    statistics.OnClick = [this, &statistics] { MyPopupHandler2(statistics); };
  }
  if (OnChange) OnChange();
}

std::vector<std::string> AdapterMenus::Descriptions() const {
  std::vector<std::string> descriptions;
  for (const auto& item : sources_.Children()) descriptions.push_back(item->Caption);
  return descriptions;
}

void AdapterMenus::ReadTicks() {
  for (const auto& item : sources_.Children()) {
    item->SetChecked(store_.ReadBool(settings::TrimmedAdapterName(item->Caption), true));
  }
}

// The flag is stored under the trimmed name, while the engine reads it under the untrimmed one.
void AdapterMenus::MyPopupHandler(toolkit::MenuItem& item) {
  item.SetChecked(!item.Checked());
  store_.WriteBool(settings::TrimmedAdapterName(item.Caption), item.Checked());
  if (OnChange) OnChange();
}

void AdapterMenus::MyPopupHandler2(const toolkit::MenuItem& item) {
  if (OpenStatistics) OpenStatistics(item.Caption);
}

}  // namespace display
