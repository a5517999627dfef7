#include "concessions/ConcessionTexts.h"

#include "concessions/ConcessionManager.h"
#include "core/Numbers.h"
#include "core/Text.h"

namespace zorvane {

ConcessionListing concessionListing(const Concession& item, const std::string& folder) {
    ConcessionListing row;
    row.qualityList = item.qualityList;
    row.qualityIndex = item.quality;
    row.price = formatMoney(item.price);
    row.yourCost = formatMoney(item.getUnitCost());
    row.soldToday = std::to_string(item.todayssold);
    row.profit = formatMoney(item.todaysprofit);
    row.picture = item.picture.empty() ? "" : dataPath(folder, item.picture);
    row.tip = item.name;
    return row;
}

ConcessionStockRow concessionStockRow(const Concession& item) {
    return {std::to_string(item.stock), std::to_string(item.buypermonth),
            std::to_string(item.lastmonthsales), formatMoney(item.cost),
            formatMoney(item.getMyMonthlyCost())};
}

ConcessionTotals concessionTotals(const ConcessionManager& stand) {
    return {formatMoney(stand.shownTotalMyCost()), std::to_string(stand.shownTotalSold()),
            formatMoneyShort(stand.shownTotalProfit()), formatMoney(stand.monthlyOrderCost()),
            formatMoneyShort(stand.shownIncomeLastMonth())};
}

int concessionOrderOf(std::string_view typed) {
    return toInt16(leadingNumber(typed));
}

} // namespace zorvane
