#pragma once
#include "frame/ChildFrame.h"

#include <array>

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QTabWidget;
class QTableWidget;

namespace zorvane::screens {

class ButtonLabel;

// The screen of mode 2: "Movies", in four tabs (SSTab1).
//
// - "Current Shows": the eight showtimes with their movie, ads and today's sales; the check
//   boxes that pick showtimes (a right click on one books the selected movie there alone);
//   the showtime labels that switch matinee prices; the own movies, whose list stops the
//   clock while it has the focus; assign, stop and sell.
// - "Buy New Movies": the week's offer; a double click buys.
// - "Ticket Prices": the three prices, applied on Enter or on leaving a box.
// - "Advertisements": ads per showtime; a double click asks how many.
//
// The check boxes and the list's selection are the game's state (MovieManager); the widgets
// mirror it.
class frmMovies : public ChildFrame {
    Q_OBJECT
  public:
    frmMovies(Game& game, std::uint32_t bgr, QWidget* parent = nullptr);

    void paintBuyMovies();
    void paintMyMovies();
    void paintShowtimes();
    void paintTicketPrices();
    void paintAds();

    QTabWidget* tabs() const { return SSTab1_; }

    void attach(QtScreen& screen) override;
    void addScreenshots(Screenshots& shots) override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* buildCurrentShows();
    QWidget* buildBuyMovies();
    QWidget* buildTicketPrices();
    QWidget* buildAds();
    // The check boxes as the game holds them.
    void paintChecks();
    void applyTicketPrice(int index);
    void askAds(int row);

    QTabWidget* SSTab1_;
    std::array<QCheckBox*, 8> chkShowtimeAssign_{};
    QCheckBox* chkShowtimeAssignAll_ = nullptr;
    std::array<ButtonLabel*, 8> lblShowtime_{};
    std::array<QLabel*, 8> lblAds_{}, lblMovieTitle_{}, lblTicketsSold_{}, lblIncome_{},
        lblDaysRunning_{}, lblPopularity_{};
    QLabel* lblTotalSold_ = nullptr;
    QLabel* lblTotalIncome_ = nullptr;
    QListWidget* lstMyMovies_ = nullptr;
    QTableWidget* grdBuyMovies_ = nullptr;
    std::array<QLineEdit*, 3> txtTicketPrice_{};
    QTableWidget* gridAds_ = nullptr;
};

} // namespace zorvane::screens
