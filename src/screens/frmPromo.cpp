#include "frmPromo.h"

#include "Screenshots.h"
#include "frame/ButtonLabel.h"
#include "frame/Labels.h"
#include "frame/Look.h"
#include "frame/Picture.h"
#include "frame/Twips.h"
#include "ports/QtScreen.h"
#include "reputation/ReputationTexts.h"
#include "reputation/promoManager.h"
#include "session/Game.h"

#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>

namespace zorvane::screens {

namespace {

// The five media's cards across the top, the current promotions below them (pixels).
constexpr int cardLeft = 8, cardTop = 8, cardWidth = 118, cardGap = 8, cardHeight = 174;
constexpr int pictureSize = 64;
constexpr int frameTop = cardTop + cardHeight + 10, frameHeight = 132;
constexpr int rowHeight = 17;
constexpr int screenHeight = 5280; // twips

const char* const pictures[5] = {"images\\promos\\nickel.png", "images\\promos\\newspaper.png",
                                 "images\\promos\\radio.png", "images\\promos\\billboard.png",
                                 "images\\promos\\television.png"};

QLabel* label(QWidget* parent, const QString& name, const QString& text, const QRect& r,
              const QFont& font, Qt::Alignment align = Qt::AlignLeft | Qt::AlignVCenter) {
    return placeLabel(parent, name, text, r, font, align);
}

ButtonLabel* button(QWidget* parent, const QString& name, const char* caption, const QRect& r) {
    return placeButton(parent, name, QString::fromLatin1(caption), r,
                       fromBgr(promoCaptions::buttonColour), look::ink);
}

} // namespace

frmPromo::frmPromo(Game& game, std::uint32_t bgr, QWidget* parent)
    : ChildFrame(game, 0, QStringLiteral("frmPromo"), QString::fromLatin1(promoCaptions::header),
                 bgr, parent) {
    QWidget* b = body();
    promoManager& promos = game_.promos;
    for (int i = 0; i < promoManager::mediaCount; ++i) {
        const auto k = static_cast<std::size_t>(i);
        const QString medium = QString::fromLatin1(promoCaptions::media[k]);
        auto* card = new QFrame(b);
        card->setObjectName(QStringLiteral("framePromo_%1").arg(i));
        card->setGeometry(cardLeft + i * (cardWidth + cardGap), cardTop, cardWidth, cardHeight);
        card->setFrameShape(QFrame::Box);
        card->setStyleSheet(
            QStringLiteral("QFrame#framePromo_%1 { background: #F6E7C1; border: 1px solid #C9A227; "
                           "border-radius: 4px; }")
                .arg(i));

        label(card, QStringLiteral("lblPromoLabel_%1").arg(i), medium,
              QRect(2, 6, cardWidth - 4, 18), look::font(9, true), Qt::AlignCenter);
        auto* img = label(card, QStringLiteral("imgPromo_%1").arg(i), {},
                          QRect((cardWidth - pictureSize) / 2, 28, pictureSize, pictureSize),
                          font(), Qt::AlignCenter);
        img->setPixmap(loadPicture(game_, pictures[i]));
        img->setAccessibleName(medium);
        auto* points =
            label(card, QStringLiteral("lblPromoLevelLabel_%1").arg(i), {},
                  QRect(2, 96, cardWidth - 4, 16), look::font(8.5, true), Qt::AlignCenter);
        points->setAccessibleName(medium + QStringLiteral(" points"));
        look::paint(points, look::cream, look::teal);
        points->setAutoFillBackground(false);
        lblPromoLevelLabel_[k] = points;
        auto* price = label(card, QStringLiteral("lblPromoPriceLabel_%1").arg(i), {},
                            QRect(2, 113, cardWidth - 4, 16), look::font(8.5), Qt::AlignCenter);
        price->setAccessibleName(medium + QStringLiteral(" daily price"));
        price->setToolTip(QString::fromLatin1(promoCaptions::priceTip));
        lblPromoPriceLabel_[k] = price;

        auto* add = button(card, QStringLiteral("lbcAddAd_%1").arg(i), promoCaptions::buy,
                           QRect(8, 138, 48, 24));
        add->setAccessibleName(QStringLiteral("Buy ") + medium);
        connect(add, &ButtonLabel::clicked, this, [&promos, i] { promos.addPromo(i); });
        auto* drop = button(card, QStringLiteral("lbcDropAd_%1").arg(i), promoCaptions::drop,
                            QRect(cardWidth - 56, 138, 48, 24));
        drop->setAccessibleName(QStringLiteral("Drop ") + medium);
        connect(drop, &ButtonLabel::clicked, this, [&promos, i] { promos.dropPromo(i); });
    }

    auto* frame = new QFrame(b);
    frame->setObjectName(QStringLiteral("Frame1"));
    frame->setGeometry(cardLeft, frameTop, 640 - 2 * cardLeft, frameHeight);
    frame->setStyleSheet(
        QStringLiteral("QFrame#Frame1 { border: 1px solid #C9A227; border-radius: 4px; }"));
    label(frame, QStringLiteral("Label1"), QString::fromLatin1(promoCaptions::current),
          QRect(10, 6, 200, 16), look::font(8.5, true));

    grdPromos_ = new QTableWidget(0, 4, frame);
    grdPromos_->setObjectName(QStringLiteral("grdPromos"));
    grdPromos_->setAccessibleName(QString::fromLatin1(promoCaptions::current).chopped(1));
    QStringList headers;
    for (const char* h : promoManager::gridHeader)
        headers << QString::fromLatin1(h);
    grdPromos_->setHorizontalHeaderLabels(headers);
    grdPromos_->verticalHeader()->hide();
    grdPromos_->verticalHeader()->setDefaultSectionSize(rowHeight);
    grdPromos_->horizontalHeader()->setFixedHeight(rowHeight + 2);
    grdPromos_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    grdPromos_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grdPromos_->horizontalHeader()->setMinimumSectionSize(4);
    int gridWidth = 0;
    for (std::size_t c = 0; c < promoCaptions::gridColumnWidths.size(); ++c) {
        const int w = px(promoCaptions::gridColumnWidths[c]);
        grdPromos_->setColumnWidth(static_cast<int>(c), w);
        gridWidth += w;
    }
    grdPromos_->setGeometry(10, 24, gridWidth + 2, rowHeight + 2 + 5 * rowHeight + 2);
    grdPromos_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    grdPromos_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    grdPromos_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grdPromos_->setSelectionMode(QAbstractItemView::NoSelection);
    grdPromos_->setFocusPolicy(Qt::TabFocus);
    grdPromos_->setFont(look::font(7.5));
    grdPromos_->horizontalHeader()->setFont(look::font(7.5, true));
    grdPromos_->setStyleSheet(QStringLiteral("QTableWidget { background: #FFFBF0; color: #2B1D14; "
                                             "gridline-color: #C9A227; border: 1px solid #2B1D14; }"
                                             "QHeaderView::section { background: #1D2A44; color: "
                                             "#F2C14E; border: 0; border-right: 1px solid #C9A227;"
                                             " padding-left: 2px; }"));

    const int totalsLeft = gridWidth + 32;
    label(frame, QStringLiteral("lblCurrentPromoLevelLabel"),
          QString::fromLatin1(promoCaptions::level), QRect(totalsLeft, 28, 160, 18),
          look::font(8.5, true));
    lblCurrentPromoLevel_ = label(frame, QStringLiteral("lblCurrentPromoLevel"), {},
                                  QRect(totalsLeft + 160, 28, 90, 18), look::font(8.5));
    lblCurrentPromoLevel_->setAccessibleName(QString::fromLatin1(promoCaptions::level).chopped(1));
    label(frame, QStringLiteral("lblTotalPaid"), QString::fromLatin1(promoCaptions::totalPaid),
          QRect(totalsLeft, 50, 160, 18), look::font(8.5, true));
    lblTotalMonthlyPayments_ = label(frame, QStringLiteral("lblTotalMonthlyPayments"), {},
                                     QRect(totalsLeft + 160, 50, 90, 18), look::font(8.5));
    lblTotalMonthlyPayments_->setAccessibleName(
        QString::fromLatin1(promoCaptions::totalPaid).chopped(1));
    auto* hint =
        label(frame, QStringLiteral("lblPromoHint"), QString::fromLatin1(promoCaptions::hint),
              QRect(totalsLeft, 76, 250, 46), look::font(7.5), Qt::AlignLeft | Qt::AlignTop);
    hint->setWordWrap(true);

    auto* all = button(frame, QStringLiteral("lbcDropAll"), promoCaptions::dropAll,
                       QRect(frame->width() - 150, 28, 138, 26));
    connect(all, &ButtonLabel::clicked, this, [this] { dropAll(); });

    resize(width(), px(screenHeight));
    paintPromotions();
}

// "Drop All Promos" asks first; only a Yes stops them.
void frmPromo::dropAll() {
    if (game_.dialogs().ask(promoCaptions::dropAllQuestion, Buttons::YesNo) == Answer::Yes)
        game_.promos.dropAllPromos();
}

void frmPromo::paintPromotions() {
    const PromotionsView v = promotionsView(game_.promos);
    for (std::size_t i = 0; i < lblPromoLevelLabel_.size(); ++i) {
        lblPromoLevelLabel_[i]->setText(QString::fromStdString(v.pointLabels[i]));
        lblPromoPriceLabel_[i]->setText(QString::fromStdString(v.costLabels[i]));
    }
    // With no row the table shows no header either.
    grdPromos_->setRowCount(static_cast<int>(v.rows.size()));
    grdPromos_->horizontalHeader()->setVisible(!v.rows.empty());
    for (std::size_t r = 0; r < v.rows.size(); ++r) {
        const PromoRow& row = v.rows[r];
        const std::string* cells[4] = {&row.promo, &row.pts, &row.count, &row.price};
        for (int c = 0; c < 4; ++c) {
            const QString text = QString::fromStdString(*cells[c]);
            QTableWidgetItem* item = grdPromos_->item(static_cast<int>(r), c);
            if (!item)
                grdPromos_->setItem(static_cast<int>(r), c, new QTableWidgetItem(text));
            else if (item->text() != text)
                item->setText(text);
        }
    }
    lblCurrentPromoLevel_->setText(QString::fromStdString(v.currentPromoLevel));
    lblTotalMonthlyPayments_->setText(QString::fromStdString(v.totalDailyPayments));
}

void frmPromo::attach(QtScreen& screen) {
    screen.addPainter(View::Promotions, [this] { paintPromotions(); });
}

// Two media running: radio spots and a billboard.
void frmPromo::addScreenshots(Screenshots& shots) {
    shots.add([this](Screenshots& s) {
        game_.switchMode(0);
        promoManager& promos = game_.promos;
        promos.dropAllPromos();
        for (const int medium : {2, 2, 3})
            promos.addPromo(medium);
        s.save(this, QStringLiteral("frmPromo.png"));
    });
}

} // namespace zorvane::screens
