#pragma once

/// The vendor's name and addresses, as the Help menu shows and opens them. The one place to change for another vendor.
namespace VendorAddresses
{
inline constexpr const char *Name = "Keelmark";
inline constexpr const char *Edition = "Desktop Edition";
inline constexpr const char *SupportMail = "mailto:support@keelmark.example";

/// A web page of the vendor under the index of its menu item; the bug report page has an item elsewhere.
struct Page {
    int index;
    const char *caption;
    const char *address;
};
inline constexpr int BugReport = 20;
inline constexpr Page Pages[] = {
    {5, "&Home page", "https://www.keelmark.example/"},
    {10, "&Products", "https://www.keelmark.example/products/"},
    {15, "&Downloads", "https://www.keelmark.example/downloads/"},
    {BugReport, "", "https://www.keelmark.example/downloads/draftsurvey/bugs.php"},
};
} // namespace VendorAddresses
