#pragma once
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace zorvane {

class Concession;
class ConcessionManager;

// What the concessions screen shows, built from the stand's state. The screen only draws
// these.

// What an item's row on the "Prices" tab shows (updateMyListing).
struct ConcessionListing {
    std::vector<std::string> qualityList; // the quality list's texts, in index order
    int qualityIndex = 0;                 // the list's position: the item's quality
    std::string price;                    // txtPrice
    std::string yourCost;                 // lblMyCost: the unit cost with its quality surcharge
    std::string soldToday;                // lblSold
    std::string profit;                   // lblProfit: today's profit
    std::string picture;                  // imgConcession: the picture's file
    std::string tip;                      // its tool tip: the item's name
};

// What an item's row on the "Stock" tab shows (buildTables).
struct ConcessionStockRow {
    std::string inStock;        // lblInStock
    std::string buyPerMonth;    // txtBuyPerMonth
    std::string lastMonthSales; // lblLastMonthSales
    std::string costPerItem;    // lblCostPerItem: the base cost, without the quality surcharge
    std::string totalCost;      // lblTotalCost: the month's order
};

// The stand's figures below the rows of the two tabs.
struct ConcessionTotals {
    std::string totalMyCost;     // lblTotalMyCost: sum of the base costs
    std::string totalSold;       // lblTotalSold
    std::string totalProfit;     // lblTotalProfit
    std::string totalTotalCost;  // lblTotalTotalCost: the month's whole order
    std::string incomeLastMonth; // lblTotalIncomeLastMonth
};

// The screen's fixed captions: its header, the two tabs, the column and row headers. The
// stock tab's last column really is "Total  cost " with two blanks and one behind.
inline constexpr const char* concessionsHeader = "Concessions";
inline constexpr std::array<const char*, 2> concessionTabs{"Prices", "Stock"};
inline constexpr std::array<const char*, 5> concessionPriceColumns{"Quality", "Price", "Your Cost",
                                                                   "Sold today", "Profit"};
inline constexpr const char* concessionPriceTotals = "Totals";
inline constexpr std::array<const char*, 5> concessionStockColumns{
    "In Stock", "Buy per month", "Last month sales", "Cost per item", "Total  cost "};
inline constexpr const char* concessionStockTotal = "Total";
inline constexpr const char* concessionIncomeCaption = "Last Month's Income:";

// What the "Buy per month" box orders when the player has typed `typed`: its leading number
// (0 if it has none), rounded to nearest with ties to even; a leading minus is kept, so a
// negative order can be typed. Beyond 16 bits it is the game's overflow error.
int concessionOrderOf(std::string_view typed);

// An item's row on the "Prices" tab; its picture is found in the program's `folder`.
ConcessionListing concessionListing(const Concession& item, const std::string& folder);
// An item's row on the "Stock" tab.
ConcessionStockRow concessionStockRow(const Concession& item);
// The stand's totals. The sales totals and the month's income are those of the moment they
// were last shown, as their labels keep them; the month's order is the running one.
ConcessionTotals concessionTotals(const ConcessionManager& stand);

} // namespace zorvane
