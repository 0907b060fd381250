// Buttons, bars of buttons, check boxes and options.
#include "desktop/windows/accessible.h"
#include "desktop/windows/button_face.h"
#include "desktop/windows/form_window.h"
#include "desktop/windows/look.h"
#include "desktop/windows/peers.h"
#include "host/buttons.h"
#include "host/form.h"
#include "host/panels.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QRadioButton>

#include <cmath>

namespace quendal {

namespace {

// A button with an icon that is many times as wide as high is a line of a list: its content begins
// at the left. On all others it stands in the middle, unless the form wants it at the right.
Qt::Alignment alignOf(const ctl_Button& button) {
    constexpr double kListShape = 8;
    const bool line =
        !button.pictureIcon().empty() && button.place().width > kListShape * button.place().height;
    if (button.textAlign() == TextAlign::Right) {
        return Qt::AlignRight;
    }
    return line && button.textAlign() == TextAlign::Left ? Qt::AlignLeft : Qt::AlignHCenter;
}

class ButtonPeer final : public WidgetPeer {
  public:
    ButtonPeer(ctl_Button& button, FormWindow& window)
        : WidgetPeer(button, window), button_(button) {
        face_ = new ButtonFace(&window.content(), window.icons());
        setWidget(face_);
        QObject::connect(face_, &QAbstractButton::clicked, face_,
                         [this] { report([this] { control()->userClicked(); }); });
    }

  protected:
    void show() override {
        ButtonFace::Style style;
        const bool plain = button_.bordercolor() == look::kButtonColor &&
                           button_.bordercolor2() == look::kButtonColor;
        if (!plain) {
            style.fill = look::toQColor(button_.bordercolor());
            style.border = look::toQColor(button_.bordercolor2());
        }
        if (!(button_.textColor() == kBlack)) {
            style.ink = look::toQColor(button_.textColor());
        }
        style.font = button_.font();
        style.icon = button_.pictureIcon();
        style.align = alignOf(button_);
        face_->setText(shownText(button_.text()));
        face_->setScale(scale());
        face_->setStyle(std::move(style));
    }

  private:
    ctl_Button& button_;
    ButtonFace* face_;
};

// Holds the buttons of a bar.
class BarHolder final : public QWidget, public Spoken {
  public:
    using QWidget::QWidget;
    QAccessible::Role spokenRole() const override { return QAccessible::ToolBar; }
};

class CmdBarPeer final : public WidgetPeer {
  public:
    CmdBarPeer(ctl_CmdBar& bar, FormWindow& window) : WidgetPeer(bar, window), bar_(bar) {
        setWidget(new BarHolder(&window.content()));
        row_ = new QHBoxLayout(widget());
        row_->addStretch();
    }

    QWidget* focusTarget() const override { return faces_.empty() ? widget() : faces_.front(); }
    std::vector<QWidget*> focusTargets() const override { return {faces_.begin(), faces_.end()}; }

    // Enter presses the button that has the focus, Tab goes from button to button first.
    std::optional<bool> ownKey(QWidget* at, Key key, const std::string& character) override {
        const auto found = std::find(faces_.begin(), faces_.end(), at);
        if (found == faces_.end()) {
            return std::nullopt;
        }
        const auto index = static_cast<std::size_t>(found - faces_.begin());
        if (key == Key::Tab && index + 1 < faces_.size()) {
            faces_[index + 1]->setFocus(Qt::TabFocusReason);
            return true;
        }
        if (key == Key::Enter || character == " ") {
            press(index);
            return true;
        }
        return std::nullopt;
    }

  protected:
    void show() override {
        if (shown_ != bar_.buttons() || faces_.size() != bar_.buttons().size()) {
            makeFaces();
        }
        const int margin = static_cast<int>(std::lround(8 * scale()));
        row_->setContentsMargins(margin, margin / 2, margin, margin / 2);
        row_->setSpacing(margin);
        for (std::size_t i = 0; i < faces_.size(); ++i) {
            ButtonFace::Style style;
            style.font = bar_.font();
            style.icon = shown_[i].icon;
            style.isDefault = i == 0;
            faces_[i]->setStyle(std::move(style));
            faces_[i]->setScale(scale());
            faces_[i]->setFixedWidth(faceWidth(i));
            faces_[i]->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
        }
        row_->activate();
    }
    void placed() override { row_->activate(); }

  private:
    static constexpr double kLeastWidth = 104; // design px

    void makeFaces() {
        qDeleteAll(faces_);
        faces_.clear();
        shown_ = bar_.buttons();
        for (std::size_t i = 0; i < shown_.size(); ++i) {
            auto* face = new ButtonFace(widget(), icons());
            face->setText(shownText(shown_[i].text));
            face->setObjectName(QString::fromStdString(shown_[i].command));
            face->setAccessibleName(withoutMnemonic(face->text()));
            QObject::connect(face, &QAbstractButton::clicked, face, [this, i] { press(i); });
            face->installEventFilter(&window());
            row_->addWidget(face);
            face->show();
            faces_.push_back(face);
        }
    }

    void press(std::size_t index) {
        report([this, index] {
            const std::string command = shown_[index].command;
            bar_.setFocus();
            bar_.userCommand(command);
        });
    }

    int faceWidth(std::size_t index) const {
        const QFontMetricsF metrics(look::font(bar_.font(), scale()));
        const double text =
            metrics.horizontalAdvance(withoutMnemonic(shownText(shown_[index].text)));
        const double icon = shown_[index].icon.empty() ? 0 : 30 * scale();
        return static_cast<int>(
            std::ceil(std::max(kLeastWidth * scale(), text + icon + 28 * scale())));
    }

    ctl_CmdBar& bar_;
    QHBoxLayout* row_;
    std::vector<ButtonFace*> faces_;
    std::vector<ctl_CmdBar::Button> shown_;
};

// A check box or option button of Qt, drawn by the style of the program.
template <class Button, class Shown>
class SwitchPeer final : public WidgetPeer {
  public:
    SwitchPeer(Shown& control, FormWindow& window) : WidgetPeer(control, window), shown_(control) {
        button_ = new Button(&window.content());
        button_->setAutoExclusive(false); // the form says which options belong together
        setWidget(button_);
        QObject::connect(button_, &QAbstractButton::clicked, button_,
                         [this] { report([this] { this->control()->userClicked(); }); });
    }

  protected:
    void show() override {
        button_->setText(shownText(shown_.text()));
        button_->setChecked(shown_.checked());
        const double indicator = 27 * scale();
        const QSizeF room(std::max(0.0, button_->width() - indicator), button_->height());
        button_->setFont(fittedFont(shown_.font(), scale(), button_->text(), room, Wrap::None));
        QPalette palette = button_->palette();
        palette.setColor(QPalette::WindowText, look::textOn(shown_.textColor(), groundOf(shown_)));
        palette.setColor(QPalette::Disabled, QPalette::WindowText,
                         look::readable(look::kCalmInk, groundOf(shown_)));
        button_->setPalette(palette);
    }
    void showAspect(Aspect aspect) override {
        if (aspect == Aspect::Value) {
            button_->setChecked(shown_.checked());
        } else {
            show();
        }
    }
    void placed() override { show(); }

  private:
    Shown& shown_;
    Button* button_;
};

} // namespace

PeerPtr makeButtonPeer(ctl_Button& button, FormWindow& window) {
    return std::make_unique<ButtonPeer>(button, window);
}
PeerPtr makeCmdBarPeer(ctl_CmdBar& bar, FormWindow& window) {
    return std::make_unique<CmdBarPeer>(bar, window);
}
PeerPtr makeOptionButtonPeer(OptionButton& option, FormWindow& window) {
    return std::make_unique<SwitchPeer<QRadioButton, OptionButton>>(option, window);
}
PeerPtr makeCheckBoxPeer(CheckBox& box, FormWindow& window) {
    return std::make_unique<SwitchPeer<QCheckBox, CheckBox>>(box, window);
}

} // namespace quendal
