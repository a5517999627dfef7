#pragma once
#include "core/Numbers.h"

#include <array>
#include <string>

namespace zorvane {

// Every balance number and many names of the game, read from math.txt. A field is named
// exactly as its key; a key with an index in its name (gamespeed1, concess2qual0) is an
// element of the array named by the key without its numbers (gamespeed[1],
// concessqual[2][0]). Zero or empty until read: the game has no built-in values.
struct MathVars {
    // General
    std::array<Int16, 4> gamespeed{};
    double resalemin = 0;
    double fundsmin = 0;

    // Movies
    double movieminprice = 0;
    double moviemaxprice = 0;
    Int16 moviepopdropdays;
    Int16 moviepopdrop;
    Int16 movieclassicmin;
    Int16 movieclassicmax;
    double movieminreleases = 0;
    double moviemaxreleases = 0;
    double moviemaxbuymovies = 0;
    Int16 movieminpop;
    Int16 moviemaxpop;

    // Showtimes
    Int16 showtimes;
    std::array<std::string, 9> showtimename{};
    double showtimeadincome = 0;
    Int16 showtimeadsmaxtotal;
    Int16 showtimeadsmax;
    Int16 showtimeadpop;

    // Arcade
    Int16 arcademax;
    Int16 arcadeimages;
    Int16 arcadenewgamespermonth;
    Int16 arcademaxgamesonbuylist;
    Int16 arcadeclassicmin;
    Int16 arcadeclassicmax;
    Int16 arcadepopmin;
    Int16 arcadepopmax;
    Int16 arcadepricemod;
    Int16 arcadepricebroke;
    double arcadebreakchance = 0;
    Int16 arcaderepaircost;
    std::array<double, 5> arcadeplayprice{};
    Int16 arcadeplaypricedefault;
    Int16 arcadeplaychancepricemod;
    Int16 arcadeplaychanceplayedmod;
    Int16 arcadepopdropmin;
    Int16 arcadepopdropmax;

    // Concessions: item N 0 to 4 (arrays hold 0 to 5), quality M 0 to 2 (arrays hold 0 to 3)
    std::array<std::string, 6> concessname{};
    std::array<std::array<std::string, 4>, 6> concessqual{}; // concessNqualM
    std::array<double, 6> concessprice{};                    // concessNprice
    std::array<double, 6> concesscost{};                     // concessNcost
    std::array<Int16, 6> concessqualinit{};                  // concessNqualinit
    std::array<Int16, 6> concessbuy{};                       // concessNbuy
    double concessqualcost = 0;
    double concessconsidercost = 0;
    std::array<double, 4> concessconsiderqual{};

    // Money and prices
    double initfunds = 0;
    double ticketsmatinee = 0;
    double ticketsstandard = 0;
    double ticketsseniors = 0;
    double minwage = 0;
    double inflation = 0;

    // Loans
    double loanmlv = 0;
    Int16 loanpaymentsmin;
    Int16 loanpaymentsmax;
    Int16 loangrace;
    double loanir = 0;
    double loancs = 0;
    double loancsmax = 0;
    double loancsdec = 0;
    double loancsinc = 0;

    // Staff
    std::array<std::string, 8> empposname{}; // empposNname
    std::array<double, 8> empposition{};     // emppositionN
    double empraisemonths = 0;
    double empraisemin = 0;
    double emptraining = 0;
    double empexpsave = 0;
    double emprelchance = 0;
    double empambchance = 0;
    Int16 empexpchance;
    Int16 empexpoverlimit;
    Int16 empangrynowork;
    Int16 empangryoverqualified;
    Int16 empangrynopay;
    Int16 empangryquit;
    Int16 empangrycalmdown;
    Int16 empprobation;
    Int16 empoverqualifiedquitchance;
    Int16 emphours;
    double empvinnycost = 0;
    std::array<std::string, 11> empstatname{}; // empstatNname

    // Customers and demand
    Int16 percentseniors;
    Int16 percentarcade;
    Int16 percentconcessions;
    double demandbase = 0;
    double demandprice = 0;
    std::array<double, 9> demandshowtime{};
    double demandpromotion = 0;
    double demandrating = 0;
    double demandpop = 0;
    Int16 demanddupe;

    // Promotions
    std::array<Int16, 5> promo{};
    std::array<double, 5> promocost{};
    double promomax = 0;

    // Rating
    Int16 ratingdemand;
    Int16 ratingads;
    Int16 ratinganger;
    Int16 ratingpay;
    Int16 ratingambition;
    Int16 ratingpromo;
    Int16 ratinggamepops;
    double ratinggamenums = 0;
    Int16 ratingconcessions;
    Int16 ratingrnd;

    // Building
    Int16 buildingseating;
    Int16 buildingseatingmax;
    double buildingremodelcost = 0;
    Int16 buildingremodelseats;
    double buildingremodelcondition = 0;
    Int16 buildingconditioninit;
    double buildingconditiondrop = 0;
    double buildingbreakdownchance = 0;
    Int16 buildingrepaircost;
    Int16 buildingrenovationcost;
    double buildingrent = 0;
    Int16 buildingrentgrace;
    double buildingpurchasebase = 0;
    double buildingpurchaseinc = 0;

    // Look and sound
    std::array<std::string, 8> formcolor{};
    std::array<std::string, 6> imgconcession{};
    std::array<std::string, 8> sndmode{};
    std::string sndmidi;
};

} // namespace zorvane
