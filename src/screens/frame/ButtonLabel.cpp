#include "frame/ButtonLabel.h"

#include "frame/Look.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>

namespace zorvane::screens {

namespace {

// A window's click, held as a child object of the window so it lives and dies with it.
class ClickRoute : public QObject {
  public:
    ClickRoute(QObject* window, std::function<void()> click)
        : QObject(window), click_(std::move(click)) {}
    void play() const {
        if (click_)
            click_();
    }

  private:
    std::function<void()> click_;
};

} // namespace

void setClickRoute(QObject* window, std::function<void()> click) {
    if (!window)
        return;
    for (QObject* child : window->children()) {
        if (auto* old = dynamic_cast<ClickRoute*>(child)) {
            delete old;
            break;
        }
    }
    new ClickRoute(window, std::move(click));
}

void routeClick(const QObject* from) {
    for (const QObject* o = from; o; o = o->parent()) {
        for (const QObject* child : o->children()) {
            if (auto* route = dynamic_cast<const ClickRoute*>(child)) {
                route->play();
                return;
            }
        }
    }
}

ButtonLabel::ButtonLabel(const QString& name, const QString& caption, QWidget* parent, Style style)
    : QLabel(caption, parent), style_(style) {
    setObjectName(name);
    setAccessibleName(caption);
    setAlignment(Qt::AlignCenter);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setFrameShape(QFrame::Panel);
    setFrameShadow(QFrame::Raised);
    setLineWidth(style == Style::Press ? 1 : 0);
}

void ButtonLabel::setColours(const QColor& background, const QColor& text,
                             const QColor& pressedBackground, const QColor& pressedText) {
    background_ = background;
    text_ = text;
    pressedBackground_ = pressedBackground.isValid() ? pressedBackground : background;
    pressedText_ = pressedText.isValid() ? pressedText : text;
    showPressed(pressed_);
}

void ButtonLabel::playClick() const {
    if (sound_)
        routeClick(this);
}

void ButtonLabel::showPressed(bool pressed) {
    pressed_ = pressed;
    const QFrame::Shadow shadow = pressed ? QFrame::Sunken : QFrame::Raised;
    if (frameShadow() != shadow)
        setFrameShadow(shadow);
    if (background_.isValid())
        look::paint(this, pressed ? pressedBackground_ : background_,
                    pressed ? pressedText_ : text_);
}

void ButtonLabel::mousePressEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton || style_ == Style::Immediate)
        return;
    playClick();
    showPressed(true);
}

void ButtonLabel::mouseReleaseEvent(QMouseEvent* e) {
    if (style_ == Style::Immediate) {
        if (e->button() == Qt::LeftButton && rect().contains(e->position().toPoint())) {
            playClick();
            emit clicked();
        }
        return;
    }
    const bool wasPressed = pressed_;
    showPressed(false);
    if (e->button() == Qt::LeftButton && wasPressed)
        emit clicked();
}

void ButtonLabel::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Space || e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) {
        trigger();
        return;
    }
    QLabel::keyPressEvent(e);
}

void ButtonLabel::trigger() {
    playClick();
    emit clicked();
}

namespace {

class ButtonLabelAccessible : public QAccessibleWidget {
  public:
    explicit ButtonLabelAccessible(QWidget* w) : QAccessibleWidget(w, QAccessible::Button) {}
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override {
        if (action == pressAction())
            static_cast<ButtonLabel*>(widget())->trigger();
    }
    QString text(QAccessible::Text t) const override {
        if (t == QAccessible::Name && !widget()->accessibleName().isEmpty())
            return widget()->accessibleName();
        if (t == QAccessible::Name)
            return static_cast<ButtonLabel*>(widget())->text();
        return QAccessibleWidget::text(t);
    }
};

QAccessibleInterface* buttonLabelFactory(const QString& className, QObject* object) {
    if (className == QLatin1String("zorvane::screens::ButtonLabel") && object &&
        object->isWidgetType())
        return new ButtonLabelAccessible(static_cast<QWidget*>(object));
    return nullptr;
}

} // namespace

void installButtonLabelAccessibility() {
    QAccessible::installFactory(buttonLabelFactory);
}

} // namespace zorvane::screens
