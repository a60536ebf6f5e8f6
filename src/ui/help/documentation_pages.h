// The documentation window's four pages, as rich text.
#pragma once

#include <array>

namespace flexley {

struct DocumentationPage {
    const char* tab;   // the tab's caption
    const char* name;  // the page's object name
    const char* html;
};

// Anchors on the menu page where each main window's menus are described.
inline constexpr const char* kLoadingMenusAnchor = "loading";
inline constexpr const char* kCalculationsMenusAnchor = "calculations";

// In tab order: "Description of Menu Items", "Suggested Use", "Miscellaneous Notes",
// "Version History".
const std::array<DocumentationPage, 4>& documentation_pages();

}  // namespace flexley
