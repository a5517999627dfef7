#pragma once
#include "frame/ChildFrame.h"

#include <QHash>
#include <QPixmap>

#include <array>

class QGroupBox;
class QLabel;
class QListWidget;
class QTabWidget;
class QTableView;

namespace zorvane::screens {

class ButtonLabel;
class StaffGridModel;

// The screen of mode 1: "Employees", in three tabs.
//
// - "Positions": the chart of the seven posts with the holder, the wage (a click on it asks
//   for a new one), seniority, qualification, sick days and pay, the totals and the minimum
//   wage.
// - "Current Employees": the staff grid, row n being employee n, and the details panel that a
//   click on the grid opens: the person's figures, the face in nine layers, the position list
//   with its assign button, the fire button (after a question) and the close button.
// - "Hire new employees": today's ten applicants; the experience cell is light red when that
//   post is still open, so the applicant would go straight into it.
//
// The grid keeps its current row by number. After a day in which people left, the row may
// name another person than the one in the open panel: the fire button asks about the panel's
// person and fires the grid's row, as the game always did.
class frmEmployees : public ChildFrame {
    Q_OBJECT
  public:
    frmEmployees(Game& game, std::uint32_t bgr, QWidget* parent = nullptr);
    ~frmEmployees() override;

    void paintPositions();
    void paintEmployeeGrid();
    void paintHireTable();
    void paintEmployeeDetails();

    // The grid's current row: 0 is the header row (the only row with no staff).
    int gridRow() const { return gridRow_; }
    // A click on the grid: the row clicked becomes current (the header row only when it is
    // the only row), then the panel opens on the current row.
    void clickGrid(int row);

    void attach(QtScreen& screen) override;
    void addScreenshots(Screenshots& shots) override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void buildPositionsTab(QWidget* page);
    void buildStaffTab(QWidget* page);
    void buildDetailsPanel(QWidget* page);
    void buildHireTab(QWidget* page);
    void setLayer(int layer, const std::string& file);
    void fireShownEmployee();
    void hireSeven();

    QtScreen* screen_ = nullptr;
    QTabWidget* SSTab1_;
    // Tab 0
    std::array<QLabel*, 7> lblPosition_{}, lblEmpName_{}, lblSeniority_{}, lblExperience_{},
        lblSickDays_{}, lblPaid_{};
    std::array<ButtonLabel*, 7> lblPayRate_{};
    QLabel* lblTotalPayRate_;
    QLabel* lblTotalSick_;
    QLabel* lblTotalPaid_;
    QLabel* lblMinWage_;
    // Tab 1
    QTableView* grdEmps_;
    StaffGridModel* gridModel_;
    int gridRow_ = 0;
    bool holdRow_ = false; // the grid is being refilled: its current row stays by number
    QGroupBox* frmEmpDetails_;
    QLabel* lblEmpNum_;
    QLabel* lblDetlName_;
    std::array<QLabel*, 10> detailValues_{};
    QListWidget* lstPosition_;
    std::array<QLabel*, 9> faceLayers_{};
    QHash<QString, QPixmap> faceCache_;
    // Tab 2
    std::array<QLabel*, 10> lblHireName_{}, lblHireExp_{}, lblHireRel_{}, lblHireAmb_{},
        lblHireTrain_{};
    std::array<ButtonLabel*, 10> lbcHireEmp_{};
};

} // namespace zorvane::screens
