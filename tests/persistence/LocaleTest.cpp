// The window adopts the player's locale, and with it the C library's decimal comma. No
// number the game reads or writes may follow it: the same game played, saved and loaded
// under de_DE.UTF-8 gives the same bytes as under "C".
#include "Simulator.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "support/SimScenario.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <locale.h>
#include <sstream>

using namespace zorvane;
using namespace zorvane::test;

namespace {

struct Written {
    std::vector<std::string> numbers; // what the number helpers make of a few values
    std::string saved, resaved, state;
};

// A month of business with a loan under the given locale of this thread: its saved game,
// that game loaded into a fresh session and saved again, and the simulator's state.
Written playUnder(locale_t locale) {
    const locale_t before = uselocale(locale);
    Written w;
    w.numbers = {numberText(1234.5),
                 numberTextSigned(-0.25),
                 numberText(leadingNumber(" 1234.5e1xyz")),
                 numberText(strictNumber("2.5", "a test value")),
                 numberText(digitsValue("$1,234.50")),
                 fixedText(2.345, 2),
                 formatMoney(2345.67),
                 formatMoneyShort(2345),
                 formatGrouped(1234567.891, 1)};
    DataFolder data;
    std::ostringstream out;
    auto session = [&](std::uint64_t seed) { return startSimulator(data, seed, out); };
    const auto played = session(7);
    for (const char* line :
         {"hire 1", "hire 1", "hire 1", "hire 1", "hire 1", "hire 1", "hire 1", "hire 1",
          "buymovie 1", "show 1 5 6 7", "ticket 0 $6.25", "price 0 3.75", "buygame 1",
          "promo add 2", "loan 15000 18", "day 30", "state"})
        played->runLine(line, 0);
    w.state = out.str();
    const std::string first = data.file("first.zvn"), second = data.file("second.zvn");
    played->game().savedPath = first;
    played->game().files.saveGame();
    const auto loaded = session(8);
    loaded->game().files.loadGame(first);
    loaded->game().savedPath = second;
    loaded->game().files.saveGame();
    w.saved = readFile(first);
    w.resaved = readFile(second);
    uselocale(before);
    return w;
}

} // namespace

TEST(Locale, ADecimalCommaReachesNoNumberTheGameReadsOrWrites) {
    const locale_t comma = newlocale(LC_ALL_MASK, "de_DE.UTF-8", nullptr);
    ASSERT_NE(comma, nullptr) << "the locale de_DE.UTF-8 is missing: tools/install-deps.sh "
                                 "generates it";
    const locale_t c = newlocale(LC_ALL_MASK, "C", nullptr);
    const Written plain = playUnder(c);
    const Written german = playUnder(comma);
    char probe[16];
    const locale_t before = uselocale(comma);
    std::snprintf(probe, sizeof probe, "%.1f", 1.5);
    uselocale(before);
    freelocale(comma);
    freelocale(c);
    ASSERT_STREQ(probe, "1,5") << "the locale does not write a decimal comma";

    EXPECT_EQ(german.numbers, plain.numbers);
    ASSERT_NE(plain.saved.find("\r\nfunds="), std::string::npos);
    EXPECT_EQ(german.saved, plain.saved);
    EXPECT_EQ(german.resaved, plain.resaved);
    EXPECT_EQ(german.state, plain.state);
}
