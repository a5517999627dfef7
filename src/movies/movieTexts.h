#pragma once
#include <array>
#include <string>
#include <vector>

namespace zorvane {

class MovieManager;

// What the Movies screen shows, built from the game state. The screen only draws these.

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
