#pragma once
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zorvane {

class MovieManager;

// What the Movies screen shows, built from the game state. The screen only draws these.

// The Movies screen's fixed captions, sizes and colours.
namespace movieCaptions {
inline constexpr const char* header = "Movies"; // lblHeader
inline constexpr std::array<const char*, 4> tabs{"Current Shows", "Buy New Movies", "Ticket Prices",
                                                 "Advertisements"}; // SSTab1
// lblChartHeader over the showtime table, after the column of check boxes.
inline constexpr std::array<const char*, 7> chartHeader{"Showtime", "Ads", "Movie Title", "Sold",
                                                        "Income",   "Age", "Pop"};
inline constexpr const char* totals = "Totals";             // lblTotals
inline constexpr const char* assign = "Assign showtime(s)"; // lbcAssign
inline constexpr const char* stop = "Stop showtime(s)";     // lbcStopShowtimes
inline constexpr const char* sell = "Sell Selected Movie";  // lbcSellMovie
inline constexpr const char* myMovies = "Your movies";      // over lstMyMovies
inline constexpr const char* showsHint =
    "Tick showtimes, pick a movie and assign it. A right click on a box books the picked movie "
    "there alone; a click on a showtime switches its matinee prices (grey).";
inline constexpr const char* buyHint =
    "This week's releases from the distributor. Double click a movie to buy it; the offer "
    "changes every week.";
// The three price boxes (txtTicketPrice 0 to 2) and what they are.
inline constexpr std::array<const char*, 3> priceCaptions{
    "Standard price:", "Matinee price:", "Senior price:"};
inline constexpr const char* pricesHint =
    "Type a price and press Enter. Matinee shows sell at the matinee price; seniors pay theirs "
    "only while it is below the matinee price.";
inline constexpr const char* adsHint =
    "Ads before a movie bring money every day but cost that showtime some popularity. Double "
    "click a showtime to set its ads.";
inline constexpr const char* adsPrompt =
    "How many ads should be run before the movie on this showtime?"; // gridAds' input box
inline constexpr const char* adsTitle = "Advertisements";
inline constexpr std::array<int, 3> buyColumnWidths{4400, 1000, 1000};       // twips
inline constexpr std::array<int, 4> adsColumnWidths{1000, 1000, 1200, 1620}; // twips
inline constexpr std::uint32_t buttonColour = 0xC0FFC0;  // the lbc buttons, blue-green-red
inline constexpr std::uint32_t matineeColour = 0xE0E0E0; // a matinee's showtime label
} // namespace movieCaptions

// What the ads box's answer does: empty text (Cancel too) changes nothing; otherwise the
// leading number of the text, floored to 16 bits, so text without a number asks for 0 ads.
// A number beyond 16 bits is the game's overflow error.
std::optional<int> adsAnswer(const std::string& text);

// A grid: its header row (empty for an empty buy list) and its data rows.
struct GridText {
    std::vector<std::string> header;
    std::vector<std::vector<std::string>> rows;
};

// One row of the showtime table.
struct ShowtimeRowText {
    std::string showtime; // the label's caption
    bool matineeGrey = false;
    std::string ads;
    std::string title; // "(No Movie)" with no movie
    std::string sold;
    std::string income;
    std::string age;
    std::string popularity;
};

struct ShowtimeTableText {
    std::array<ShowtimeRowText, 8> rows; // showtimes 1 to 8
    std::string totalSold;
    std::string totalIncome;
};

// The week's offer: "Movie Title", "Popularity", "Price"; no header when it is empty.
GridText buyMoviesGrid(const MovieManager& mm);
// The own list: the title (cut to 25 characters and "..." when longer than 30), a blank,
// the price rounded to cents as money.
std::vector<std::string> myMovieLines(const MovieManager& mm);
// The showtime table with its totals (income in short money).
ShowtimeTableText showtimeTable(const MovieManager& mm);
// The ads grid: a row per showtime 1 to 8 and the "Totals" row.
GridText adsGrid(const MovieManager& mm);
// A ticket price box: "$#.00", so 6 is "$6.00" and 0.5 is "$.50".
std::string ticketPriceText(double price);
// The three ticket price boxes: standard, matinee, senior.
std::array<std::string, 3> ticketPriceTexts(const MovieManager& mm);

} // namespace zorvane
