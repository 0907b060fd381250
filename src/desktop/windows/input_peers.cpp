// Controls that take or scroll: inputs, lists, tabs, rich text.
#include "desktop/windows/form_window.h"
#include "desktop/windows/look.h"
#include "desktop/windows/painted_peer.h"
#include "desktop/windows/peers.h"
#include "desktop/windows/rich_text_view.h"
#include "host/file_service.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/panels.h"
#include "host/roots.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QTabBar>

#include <cmath>

namespace quendal {

namespace {

class TermInputPeer final : public WidgetPeer {
  public:
    TermInputPeer(clt_TermInput& input, FormWindow& window)
        : WidgetPeer(input, window), input_(input) {
        edit_ = new QLineEdit(&window.content());
        edit_->setMaxLength(static_cast<int>(clt_TermInput::kMaxLength));
        setWidget(edit_);
        QObject::connect(edit_, &QLineEdit::textChanged, edit_, [this](const QString& typed) {
            report([this, &typed] { input_.userTyped(typed.toStdString()); });
        });
    }

  protected:
    void show() override {
        showText();
        edit_->setReadOnly(input_.locked());
        edit_->setAlignment(input_.textAlign() == TextAlign::Right    ? Qt::AlignRight
                            : input_.textAlign() == TextAlign::Centre ? Qt::AlignHCenter
                                                                      : Qt::AlignLeft);
        setFittedFont();
        QPalette palette = edit_->palette();
        palette.setColor(QPalette::Text, look::textOn(input_.textColor(), look::kPanel));
        edit_->setPalette(palette);
    }
    void showAspect(Aspect aspect) override {
        if (aspect == Aspect::Value) {
            showText();
        } else {
            show();
        }
    }
    void placed() override { setFittedFont(); }

  private:
    void showText() {
        const QString text = QString::fromStdString(input_.text());
        if (edit_->text() != text) {
            edit_->setText(text);
        }
    }
    void setFittedFont() {
        const double rim = 6 * scale();
        edit_->setTextMargins(static_cast<int>(rim / 2), 0, static_cast<int>(rim / 2), 0);
        // Only the height counts: what is longer scrolls.
        edit_->setFont(fittedFont(input_.font(), scale(), QStringLiteral("0"),
                                  QSizeF(1e4, std::max(1.0, edit_->height() - 4.0)), Wrap::None));
    }

    clt_TermInput& input_;
    QLineEdit* edit_;
};

class ListPeer final : public WidgetPeer {
  public:
    ListPeer(ListBox& list, FormWindow& window) : WidgetPeer(list, window), list_(list) {
        combo_ = new QComboBox(&window.content());
        setWidget(combo_);
        QObject::connect(combo_, &QComboBox::activated, combo_,
                         [this](int index) { report([this, index] { list_.userChose(index); }); });
    }

  protected:
    void show() override {
        combo_->clear();
        for (const std::string& item : list_.items()) {
            combo_->addItem(QString::fromStdString(item));
        }
        combo_->setCurrentIndex(list_.listIndex());
        combo_->setFont(fittedFont(list_.font(), scale(), QStringLiteral("0"),
                                   QSizeF(1e4, std::max(1.0, combo_->height() - 4.0)), Wrap::None));
    }
    void showAspect(Aspect aspect) override {
        if (aspect == Aspect::Value || aspect == Aspect::Text) {
            combo_->setCurrentIndex(list_.listIndex());
        } else if (aspect != Aspect::Enabled) {
            show();
        }
    }
    void placed() override { show(); }

  private:
    ListBox& list_;
    QComboBox* combo_;
};

// The page of a tab control: white, below the row of tabs.
class TabPage final : public QWidget, public Spoken {
  public:
    using QWidget::QWidget;
    QAccessible::Role spokenRole() const override { return QAccessible::Grouping; }
    void setBarHeight(int height) { barHeight_ = height; }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const double scale = look::scaleOf(this);
        const double line = std::max(1.0, std::floor(scale));
        QRectF page = QRectF(rect()).adjusted(0, barHeight_ - line, 0, 0);
        look::drawBox(painter, page, look::kCorner * scale, look::kPanel, look::kBorder, line);
    }

  private:
    int barHeight_ = 0;
};

class TabPeer final : public WidgetPeer {
  public:
    TabPeer(TabControl& tabs, FormWindow& window) : WidgetPeer(tabs, window), tabs_(tabs) {
        page_ = new TabPage(&window.content());
        setWidget(page_);
        bar_ = new QTabBar(page_);
        bar_->setExpanding(false);
        bar_->setDrawBase(false);
        bar_->setUsesScrollButtons(false);
        bar_->setElideMode(Qt::ElideRight);
        QObject::connect(bar_, &QTabBar::currentChanged, bar_,
                         [this](int tab) { report([this, tab] { tabs_.userChose(tab); }); });
    }

    QWidget* focusTarget() const override { return bar_; }

  protected:
    void show() override {
        while (bar_->count() > static_cast<int>(tabs_.captions().size())) {
            bar_->removeTab(bar_->count() - 1);
        }
        for (int i = 0; i < static_cast<int>(tabs_.captions().size()); ++i) {
            const QString caption = trimmed(tabs_.captions()[static_cast<std::size_t>(i)]);
            i < bar_->count() ? bar_->setTabText(i, caption) : void(bar_->addTab(caption));
        }
        bar_->setAccessibleName(spokenName(tabs_));
        placed();
        showTab();
    }
    void showAspect(Aspect aspect) override {
        if (aspect == Aspect::Value) {
            showTab();
        } else {
            show();
        }
    }
    // The row of tabs is as high as the look says; captions shrink until all stand side by side.
    void placed() override {
        const int height = static_cast<int>(std::lround(look::kTabBar * scale()));
        page_->setBarHeight(height);
        QString all;
        for (const std::string& caption : tabs_.captions()) {
            all += trimmed(caption);
        }
        const double padding =
            (look::kTabPadding + 2) * scale() * static_cast<double>(tabs_.captions().size());
        FontSpec spec = tabs_.font();
        spec.bold = true; // as wide as the chosen one
        QFont font =
            fittedFont(spec, scale(), all, QSizeF(std::max(1.0, page_->width() - padding), height),
                       Wrap::None);
        font.setBold(tabs_.font().bold);
        bar_->setFont(font);
        bar_->setGeometry(static_cast<int>(6 * scale()), 0,
                          page_->width() - static_cast<int>(6 * scale()), height);
    }

  private:
    static QString trimmed(const std::string& caption) { return shownText(caption).trimmed(); }

    void showTab() {
        bar_->setCurrentIndex(tabs_.tab());
        window().containerChanged(tabs_);
    }

    TabControl& tabs_;
    TabPage* page_;
    QTabBar* bar_;
};

class RichTextPeer final : public WidgetPeer {
  public:
    RichTextPeer(RichTextBox& box, FormWindow& window) : WidgetPeer(box, window), box_(box) {
        view_ = new RichTextView(&window.content());
        setWidget(view_);
    }

  protected:
    void show() override {
        const std::string& asked = box_.fileName();
        const std::string file = asked.empty() ? asked : CoreLib().FileService.realName(asked);
        view_->showFile(QString::fromStdString(file), scale());
    }
    void showAspect(Aspect aspect) override {
        if (aspect == Aspect::Value || aspect == Aspect::Font) {
            show();
        }
    }

  private:
    RichTextBox& box_;
    RichTextView* view_;
};

} // namespace

PeerPtr makeTermInputPeer(clt_TermInput& input, FormWindow& window) {
    return std::make_unique<TermInputPeer>(input, window);
}
PeerPtr makeListBoxPeer(ListBox& list, FormWindow& window) {
    return std::make_unique<ListPeer>(list, window);
}
PeerPtr makeTabPeer(TabControl& tabs, FormWindow& window) {
    return std::make_unique<TabPeer>(tabs, window);
}
PeerPtr makeRichTextPeer(RichTextBox& box, FormWindow& window) {
    return std::make_unique<RichTextPeer>(box, window);
}

} // namespace quendal
