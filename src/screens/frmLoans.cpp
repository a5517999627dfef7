#include "frmLoans.h"

#include "Screenshots.h"
#include "frame/ButtonLabel.h"
#include "frame/Labels.h"
#include "frame/Look.h"
#include "frame/Picture.h"
#include "frame/Twips.h"
#include "money/MoneyTexts.h"
#include "money/loanManager.h"
#include "ports/QtScreen.h"
#include "session/Game.h"

#include <QEvent>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>

#include <array>

namespace zorvane::screens {

namespace {

constexpr std::uint32_t buttonColour = 0xC0FFC0;
// The sentence of a new loan; its blanks leave room for the two boxes that stand over it.
const char* const sentence =
    "Borrow                           and pay it off in           payments.";
const char* const currentInfo[5] = {"Loan Amount", "Interest Rate", "Payments Remaining",
                                    "Principal Remaining", "Monthly Payments"};
// "Montly" is how the bank has always printed it.
const char* const proposedInfo[4] = {"Interest Rate", "Montly Payments", "Total you will pay",
                                     "Loan Amount"};

QLabel* makeLabel(QWidget* parent, const QString& name, const QString& text, const QRect& at,
                  double size = 8.5, bool bold = false) {
    return placeLabel(parent, name, text, at, look::font(size, bold));
}

// A box of the game's text, rewritten only when the game's text differs from what stands in it.
void sync(QLineEdit* box, const std::string& text) {
    const QString t = QString::fromStdString(text);
    if (box->text() != t)
        box->setText(t);
}

QFrame* panel(QWidget* parent, const QString& name, const QRect& at) {
    auto* f = new QFrame(parent);
    f->setObjectName(name);
    f->setGeometry(at);
    f->setStyleSheet(
        QStringLiteral(
            "QFrame#%1 { background: #F6E7C1; border: 1px solid #C9A227; border-radius: 4px; }")
            .arg(name));
    return f;
}

ButtonLabel* makeButton(QWidget* parent, const QString& name, const QString& caption,
                        const QRect& at) {
    return placeButton(parent, name, caption, at, fromBgr(buttonColour), look::ink);
}

// A column of bold captions (lbl<prefix>Info_i) with their figures beside them
// (lbl<prefix>Data_i), a row every `step` pixels from `top`; fills `figures`.
template <std::size_t N>
void figureColumn(QWidget* parent, const QString& prefix, const char* const (&captions)[N],
                  int left, int top, int step, int figureLeft, int figureWidth,
                  std::array<QLabel*, N>& figures) {
    for (std::size_t i = 0; i < N; ++i) {
        const QString caption = QString::fromLatin1(captions[i]);
        const int y = top + static_cast<int>(i) * step;
        makeLabel(parent, QStringLiteral("lbl%1Info_%2").arg(prefix).arg(i), caption,
                  QRect(left, y, 150, 20), 8.5, true);
        figures[i] = makeLabel(parent, QStringLiteral("lbl%1Data_%2").arg(prefix).arg(i), {},
                               QRect(figureLeft, y, figureWidth, 20));
        figures[i]->setAccessibleName(caption);
    }
}

} // namespace

frmLoans::frmLoans(Game& game, std::uint32_t bgr, QWidget* parent)
    : ChildFrame(game, 5, QStringLiteral("frmLoans"), QStringLiteral("Loans"), bgr, parent) {
    QWidget* b = body();
    loanManager& bank = game_.loans;

    // --- the loan that runs ---
    QFrame* current = panel(b, QStringLiteral("frameCurrent"), QRect(8, 8, 624, 148));
    auto* hands = new QLabel(current);
    hands->setObjectName(QStringLiteral("imgHands"));
    hands->setGeometry(10, 10, 160, 96);
    hands->setPixmap(loadPicture(game_, "images\\loans\\hands.png"));
    hands->setAccessibleName(QStringLiteral("Hands shaking over a loan"));
    QLabel* title =
        makeLabel(current, QStringLiteral("Label1"), QStringLiteral("Current Outstanding Debt"),
                  QRect(188, 8, 280, 22), 10, true);
    title->setStyleSheet(QStringLiteral("color: #7A1620;"));
    figureColumn(current, QStringLiteral("Current"), currentInfo, 188, 32, 20, 340, 110,
                 lblCurrentData_);
    ButtonLabel* payOff =
        makeButton(current, QStringLiteral("lbcPayOff"), QStringLiteral("Pay off full amount now"),
                   QRect(452, 108, 162, 30));
    connect(payOff, &ButtonLabel::clicked, this, [&bank] { bank.payOffLoan(); });
    makeLabel(current, QStringLiteral("Label4"), QStringLiteral("Your current credit score is:"),
              QRect(440, 32, 182, 20), 8, true);
    lblCreditScore_ =
        makeLabel(current, QStringLiteral("lblCreditScore"), {}, QRect(448, 52, 166, 30), 14, true);
    lblCreditScore_->setStyleSheet(QStringLiteral("color: #2F8F83;"));
    lblCreditScore_->setAccessibleName(QStringLiteral("Credit score"));

    // --- a new loan ---
    QFrame* offer = panel(b, QStringLiteral("frameOffer"), QRect(8, 164, 624, 166));
    QLabel* title2 =
        makeLabel(offer, QStringLiteral("Label2"), QStringLiteral("Take out a new loan"),
                  QRect(10, 6, 280, 22), 10, true);
    title2->setStyleSheet(QStringLiteral("color: #7A1620;"));
    const QString words = QString::fromLatin1(sentence);
    QLabel* label3 = makeLabel(offer, QStringLiteral("Label3"), words, QRect(10, 36, 600, 24), 9.5);
    // The boxes stand over the sentence's two runs of blanks.
    const QFontMetrics fm(label3->font());
    const auto gap = [&](const QString& before, int blanks) {
        const int left = label3->x() + fm.horizontalAdvance(before);
        const int width = fm.horizontalAdvance(QString(blanks, QLatin1Char(' ')));
        return QRect(left + 3, label3->y(), width - 6, 24);
    };
    const int first = static_cast<int>(words.indexOf(QStringLiteral("and"))) - 6;
    const int secondStart = static_cast<int>(words.indexOf(QStringLiteral(" in ")) + 3);
    const int second = static_cast<int>(words.indexOf(QStringLiteral("payments"))) - secondStart;
    txtProposedAmount_ = new QLineEdit(offer);
    txtProposedAmount_->setObjectName(QStringLiteral("txtProposedAmount"));
    txtProposedAmount_->setAccessibleName(QStringLiteral("Amount to borrow"));
    txtProposedAmount_->setGeometry(gap(QStringLiteral("Borrow"), first));
    txtProposedPayPlan_ = new QLineEdit(offer);
    txtProposedPayPlan_->setObjectName(QStringLiteral("txtProposedPayPlan"));
    txtProposedPayPlan_->setAccessibleName(QStringLiteral("Number of payments"));
    txtProposedPayPlan_->setGeometry(gap(words.left(secondStart), second));
    for (QLineEdit* box : {txtProposedAmount_, txtProposedPayPlan_}) {
        box->setFont(look::font(9.5, true));
        box->setStyleSheet(QStringLiteral(
            "QLineEdit { background: #FFFFFF; border: 1px solid #2B1D14; padding: 0 2px; }"));
    }
    // Every keystroke in the amount box works the offer out; a sum above the bank's limit
    // comes back at once as the limit.
    connect(txtProposedAmount_, &QLineEdit::textEdited, this, [this, &bank](const QString& text) {
        bank.typeAmount(text.toStdString());
        sync(txtProposedAmount_, bank.amountText);
    });
    // The payments box is read on Enter or when it loses the focus.
    connect(txtProposedPayPlan_, &QLineEdit::textEdited, this,
            [&bank](const QString& text) { bank.typePayPlan(text.toStdString()); });
    connect(txtProposedPayPlan_, &QLineEdit::returnPressed, this, [this, &bank] {
        bank.payPlanKeyPress(13);
        sync(txtProposedPayPlan_,
             bank.payPlanText); // a number past the limits comes back as the limit
    });
    txtProposedPayPlan_->installEventFilter(this);

    figureColumn(offer, QStringLiteral("Proposed"), proposedInfo, 10, 70, 21, 162, 150,
                 lblProposedData_);
    ButtonLabel* start =
        makeButton(offer, QStringLiteral("lbcStartLoan"), QStringLiteral("Take out this loan."),
                   QRect(452, 124, 162, 30));
    connect(start, &ButtonLabel::clicked, this, [&bank] { bank.startLoan(); });

    paintCredit();
    paintCurrentLoan();
    paintOffer();
}

bool frmLoans::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtProposedPayPlan_ && event->type() == QEvent::FocusOut) {
        game_.loans.payPlanLostFocus();
        sync(txtProposedPayPlan_, game_.loans.payPlanText);
    }
    return ChildFrame::eventFilter(watched, event);
}

void frmLoans::paintOffer() {
    const loanManager& bank = game_.loans;
    const auto t = loanOfferTexts(bank);
    for (std::size_t i = 0; i < t.size(); ++i)
        putText(lblProposedData_[i], t[i]);
    sync(txtProposedAmount_, bank.amountText);
    sync(txtProposedPayPlan_, bank.payPlanText);
}

void frmLoans::paintCurrentLoan() {
    const auto t = currentLoanTexts(game_.loans);
    for (std::size_t i = 0; i < t.size(); ++i)
        putText(lblCurrentData_[i], t[i]);
}

void frmLoans::paintCredit() {
    putText(lblCreditScore_, creditText(game_.loans));
}

void frmLoans::attach(QtScreen& screen) {
    screen_ = &screen;
    screen.addPainter(View::LoanOffer, [this] { paintOffer(); });
    screen.addPainter(View::CurrentLoan, [this] { paintCurrentLoan(); });
    screen.addPainter(View::Credit, [this] { paintCredit(); });
}

// A loan of $20,000 in 24 payments, two months paid, and a new offer typed below.
void frmLoans::addScreenshots(Screenshots& shots) {
    shots.add([this](Screenshots& s) {
        loanManager& bank = game_.loans;
        game_.switchMode(5);
        if (bank.getBalance() <= 0)
            bank.takeLoan("20000", "24");
        bank.loansNextMonth();
        bank.loansNextMonth();
        bank.typeAmount("$12,500");
        bank.typePayPlan("18");
        bank.payPlanKeyPress(13);
        screen_->flush();
        s.save(this, QStringLiteral("frmLoans.png"));
    });
}

} // namespace zorvane::screens
