#include "advisor/TutorTexts.h"

#include "core/Text.h"
#include "session/Game.h"
#include "session/MainTexts.h"

#include <array>
#include <string_view>

namespace zorvane {

namespace {

// The 77 steps as the advisor says them. A word in braces is a live value, filled in when the
// step is shown. Two blanks between sentences, the spellings and the "&&" are the advisor's own.
// clang-format off
const std::array<const char*, tutorSteps> script = {
    /*  1 */ "Hi, I'm your advisor!  I will help you get your cinema going and put you on the road to success!  Click the right arrow to advance to my next peice of advice or the left arrow to go back to the previous one.",
    /*  2 */ "The first thing you're going to need to do is hire some employees.  Click on the 'Employees' Mode selector.",
    /*  3 */ "As you can see all of our positions are empty, with no staff you cannot do business!  Click on the 'Hire new employees' tab.",
    /*  4 */ "Here is the list of available candidates for today.  Each day will bring new candidates, so if you see someone you want to hire, hire them immediatly because they won't be on the candidate list tomorrow.",
    /*  5 */ "The 'Experience' Column shows you what position that employee is best qualified for.  However, their experience may go up over time.",
    /*  6 */ "If the 'Experience' Column is shown in red, that indicates that position still needs to be filled.",
    /*  7 */ "The 'Reliability' Column shows you how likely they are to actually show up for their shift.  I would recommend not hiring anyone with a reliability under 7.",
    /*  8 */ "The 'Ambition' Column shows you how ambitious the candidate is.  The more ambitious people are the harder they will work and that will increase your theater's rating!",
    /*  9 */ "Go ahead and hire the best candidates for today, just get one for each position.  When you hire someone, if the position they are best qualified for is open they will fill that position automatically.",
    /* 10 */ "Don't worry if you cannot fill all of your positions in one day.  The hiring process is long and painful, it could take quite a few days before you have the staff you want.",
    /* 11 */ "To advance to the next day click any one of the 'Days' shown on the main form. (Sun, Mon, Tue, Wed, Thu, Fri, Sat)",
    /* 12 */ "New candidates are now available, hire the cream of the crop and proceed to the next day.  Keep this up until all of your positions are filled.  You can click on the 'Positions' tab to check.",
    /* 13 */ "Are all of your positioned filled?  If so click the right arrow, if not please fill your positions first.",
    /* 14 */ "Sometimes even a reliable employee may call in sick, in such case you might want to keep at least one 'On-Call' employee on your staff.",
    /* 15 */ "If you want to hire an 'On-Call' employee, pick one with low ambition because he won't get upset over not getting enough hours.",
    /* 16 */ "If someone calls in sick and no one is available to fill the position for the day, your cousin Vinny will fill it, but that will cost you {vinnycost}!",
    /* 17 */ "Okay, we've got our staff set up, the next thing you need is to get some movies going.  Click on the 'Movies' mode.",
    /* 18 */ "Your theater is not showing any movies right now, and you don't have any to show.  You cannot get movies for free you need to buy them.  But don't worry you can sell them later.  Click on the 'Buy new movies' tab.",
    /* 19 */ "These are the movies that are available to buy from your distributor.  Every week new movies will be released.",
    /* 20 */ "As you can see the more popular a movie is the more it will cost you.  But it's worth it, movies will lose popularity over time.",
    /* 21 */ "Go ahead and buy a movie now, pick a good one!  Just double click on a movie to purchase it.",
    /* 22 */ "As you saw the movie was removed from the list, now click on the 'Current Shows' tab.",
    /* 23 */ "You will see the movie in the list at the bottom of the form, along with it's resale value.  The resale value will go down as it's popularity goes down.",
    /* 24 */ "Just because you bought the movie doesn't mean you're showing it.  You must now choose what showtime(s) to show the movie in.",
    /* 25 */ "If you show one movie in more than one showtime, turnout will be distributed over the number of showtimes it's showing.  So to get the most profit you should have multiple movies showing, not just one.",
    /* 26 */ "Notice that the '{showtimename1}' and '{showtimename2}' showtimes are grey?  That's because they are set to matinee shows, which have cheaper ticket prices.",
    /* 27 */ "More people want to watch movies in the evening, so to compensate for this you offer a matinee discount for the earlier shows.",
    /* 28 */ "You can set a regular showtime to a matinee showtime, or a matinee showtime to a regular showtime, by clicking on it's time label.  Try it, click on the '{showtimename3}' showtime.",
    /* 29 */ "Now, let's start showing that new movie you bought, place a checkmark next to any showtime you want for this movie and then click on the 'Assign Showtime(s)' button",
    /* 30 */ "Before you proceed be careful of your current 'Funds' level, you don't want to go broke and there are other hidden costs I havn't told you about yet.",
    /* 31 */ "Okay, leave some showtimes empty for other movies, go back to 'Buy new movies' and buy some more.",
    /* 32 */ "Now click, again, on the 'Current Shows' tab and assign these new movies to showtimes.  Select the movie from the list, check the showtimes, then click 'Assign Showtime(s)'.",
    /* 33 */ "All set?  With employees in place, and movies showing, you now have what it takes to open for business.  The next time you advance to the next day business will be done.",
    /* 34 */ "Remember you can advance a day by clicking on any 'Day' from the main form, also you can auto-advance by clicking on the run speed.  Slow, Medium, or Fast.",
    /* 35 */ "Notice how the Current Day indicator has a '{weekmarker}' under it?  This indicates that it is now week {currentweek} of this month.",
    /* 36 */ "Click on the 'Expand details' button (Green '>>>' on the lower right of the main form.)  This will show you more information.",
    /* 37 */ "The current month is '{month}'.  You can see this because it's dark yellow.  After the 4th week of the month, a new month will start.",
    /* 38 */ "At that time you will be charged some monthly fees.  The most important one is your building rent.  Click on the 'Building' mode.",
    /* 39 */ "You do not own your building, you are renting it.  You can buy it but right now you don't have the money.  So every month you need to pay a rent.",
    /* 40 */ "Right now the rent is {rent} a month, but the rent will probably go up over time.",
    /* 41 */ "Usually expenses increase a little every year and because of this you will need to keep up by raising your ticket prices.",
    /* 42 */ "This is the only monthly expense you *have* to pay, but there are others you will probably end up paying.  Click on the 'Consessions' mode.",
    /* 43 */ "What kind of theater would you have without junk food right?  Besides being another source of income it's also important to your rating.  Click on the 'Stock' tab.",
    /* 44 */ "Here you can see how much of each consession you have in stock.  Each month you will buy more stock.  The total price you'll pay at that time is shown at the bottom.",
    /* 45 */ "You can change how much of each item you buy, by changing the number in the blue box.  You will probably need more than you have now so go ahead and double your orders on everything.",
    /* 46 */ "As you can see your total monthly expense for concessions has gone up.  Be sure to keep enough money on hand at the end of each month for this, and your rent.",
    /* 47 */ "Now click on the 'Loans' mode.",
    /* 48 */ "The local bank will help you out if you're in dire need of cash, but since you havn't really built trust with them yet they won't give you a very good interest rate.",
    /* 49 */ "If you want to get your interest rate down, you'll need to get your credit score up.  The only way to do that is to have a debt with the bank.",
    /* 50 */ "Every time you make a monthly payment on your loan, your credit score will go up a little.  The bigger the loan, the more your credit score will increase.",
    /* 51 */ "You can set a loan to as short as {loanpaymentsmin} months to at long as {loanpaymentsmax} months.",
    /* 52 */ "But keep in mind, the longer the loan the more interest you will pay over time.  However also the bigger the increase in your credit score.",
    /* 53 */ "Also, if you have a better credit score the bank will be more trusting and will be willing to loan you more money!",
    /* 54 */ "You may want to consider carrying a debt with the bank just to get your credit score up there.  That way if you should need a big loan, say to renovate your theater, you could get it at a decent interest rate!",
    /* 55 */ "Moving on, some times loitering customers can be profitable to you if you have an arcade.  That way they can throw their quarters into game machines!  Click on the 'Arcade' mode.",
    /* 56 */ "This is the empty room that will become your arcade.  First you need to buy some arcade machines.  Click on the 'Buy New Games' tab.",
    /* 57 */ "Here is a list of games that you can buy.  Every month new games will become available to you.  Each game has it's own popularity and that affects it's price.",
    /* 58 */ "Like a movie, a game's popularity will go down over time, but not as fast, and arcade games are more likely to become classics.  A classic will not go below a certain popularity level.",
    /* 59 */ "Go ahead and buy a game.",
    /* 60 */ "You can click && drag the cabinet to move it wherever you want.  Then double-click it to get details about that game.",
    /* 61 */ "You can change the name of it in the blue box at the top, you can change the cabinet style with the slider on the left, and most importantly you can change the price to play!",
    /* 62 */ "The price should be, somewhat, relative to it's popularity.  So a game that has a popularity of around 75 should cost around 75 cents to play.",
    /* 63 */ "As the popularity drops over time, you should drop the play price, otherwise no one will play the game and you won't be making any money off of it.",
    /* 64 */ "Go ahead and buy one more game, I want to show you a trick.",
    /* 65 */ "Now that you have two games I can show you this.  When you click and drag a cabinet, it is brought in front of all of the other cabinets.",
    /* 66 */ "If you want to keep the cabinet behind the others while you drag it, you can right-click and drag instead.",
    /* 67 */ "Okay, now you need to get the word out about your theater!  Click on the 'Promos' mode.",
    /* 68 */ "You can buy promotions through various media to get the word out.  Some media will cost more than others but in the long run you will save money if you use the more expensive media such as TV.",
    /* 69 */ "The maximum promotion level you can get is {promomax}, so if you can't achieve this with all TV spots, also buy some other media such as radio or newspaper.",
    /* 70 */ "The promotions will cost you each day but it's worth it!  Running promotions dramatically increases the number of people who turn out and more than makes up for the extra cost of running ads.",
    /* 71 */ "Click on the 'Graph' mode.",
    /* 72 */ "Here you can see how you're doing (financially) over time.  Keep a close eye on the graph as you run your business.  If things aren't going so well consider making changes.",
    /* 73 */ "You may need to buy newer, more popular movies, promote employees to keep them happy, offering higher quality consessions, renovating, who knows!",
    /* 74 */ "These tips I gave you are just the basics, there is much more you will need to learn on your own.",
    /* 75 */ "If, however, you are unhappy with the math of this game at all, feel free to modify it to your liking!  Just edit the math.txt file!",
    /* 76 */ "Also, check out the help document for more details about how to play Zorvane!",
    /* 77 */ "Good luck!",
};
// clang-format on

std::string wholeNumber(double value) {
    return digitsOnly(numberText(value));
}

} // namespace

const char* tutorScript(int step) {
    if (step < 1 || step > tutorSteps)
        return nullptr;
    return script[static_cast<std::size_t>(step - 1)];
}

// Money goes through formatMoney, whole numbers through digitsOnly; the week counter (0 to 3)
// is printed as it stands, so the text names week 0 in the first week of a month.
std::string tutorValue(std::string_view name, const Game& game) {
    const MathVars& m = game.math;
    if (name == "vinnycost")
        return formatMoney(m.empvinnycost);
    if (name == "showtimename1")
        return m.showtimename[1];
    if (name == "showtimename2")
        return m.showtimename[2];
    if (name == "showtimename3")
        return m.showtimename[3];
    if (name == "weekmarker")
        return weekArrows(game.calendar);
    if (name == "currentweek")
        return wholeNumber(game.calendar.currentweek);
    if (name == "month")
        return Calendar::monthName(game.calendar.currentmonth);
    if (name == "rent")
        return formatMoney(game.building.getRent());
    if (name == "loanpaymentsmin")
        return wholeNumber(m.loanpaymentsmin);
    if (name == "loanpaymentsmax")
        return wholeNumber(m.loanpaymentsmax);
    if (name == "promomax")
        return wholeNumber(m.promomax);
    return {};
}

std::string tutorText(int step, const Game& game) {
    const char* text = tutorScript(step);
    if (!text)
        return {};
    std::string out;
    std::string_view rest = text;
    // One pass from left to right: an inserted value is never read again for braces.
    for (std::size_t open; (open = rest.find('{')) != std::string_view::npos;) {
        const std::size_t close = rest.find('}', open);
        if (close == std::string_view::npos)
            break;
        out += rest.substr(0, open);
        out += tutorValue(rest.substr(open + 1, close - open - 1), game);
        rest.remove_prefix(close + 1);
    }
    out += rest;
    return out;
}

std::string labelText(std::string_view caption) {
    std::string shown;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] != '&') {
            shown += caption[i];
        } else if (i + 1 < caption.size() && caption[i + 1] == '&') {
            shown += '&';
            ++i;
        }
        // A lone "&" only marks the next letter as the label's access key: not shown.
    }
    return shown;
}

} // namespace zorvane
