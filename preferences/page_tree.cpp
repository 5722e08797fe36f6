#include "preferences/page_tree.h"

namespace preferences {
namespace {

namespace text = language::text::SettingsForm;

constexpr PageTreeItem kItems[] = {
    {0, 0, text::TreeItem0, "General"},
    {4, 0, text::TreeItem4, ""},
    {1, 1, text::TreeItem1, "GraphColors"},
    {15, 1, text::TreeItem15, "GraphGrids"},
    {2, 1, text::TreeItem2, "GraphOthers"},
    {9, 0, text::TreeItem9, ""},
    {3, 1, text::TreeItem3, "TextColors"},
    {11, 1, text::TreeItem11, "TextOther"},
    {14, 0, text::TreeItem14, ""},
    {5, 1, text::TreeItem5, "Notification"},
    {13, 1, text::TreeItem13, "BandwidthAlert"},
    {6, 0, text::TreeItem6, "Interfaces"},
    {7, 0, text::TreeItem7, "Admin"},
    {8, 0, text::TreeItem8, "Other"},
    // Places kept for what is not there: an empty page, twice, and a page that does not exist.
    {10, 0, text::TreeItem10, "SpeedUp"},
    {16, 0, text::TreeItem16, "BrisantoScript"},
    {17, 0, text::TreeItem17, "SpeedUp"},
    {12, 0, text::TreeItem12, "ResetSettings"},
};

}  // namespace

std::span<const PageTreeItem> PageTree() { return kItems; }

}  // namespace preferences
