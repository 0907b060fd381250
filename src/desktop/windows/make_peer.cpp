#include "desktop/windows/peers.h"
#include "host/buttons.h"
#include "host/labels.h"
#include "host/panels.h"
#include "host/pictures.h"

namespace quendal {

std::unique_ptr<WidgetPeer> makePeer(Control& control, FormWindow& window) {
    switch (control.kind()) {
    case ControlKind::Button:
        return makeButtonPeer(static_cast<ctl_Button&>(control), window);
    case ControlKind::Panel:
        return makePanelPeer(static_cast<ctl_Pannel&>(control), window);
    case ControlKind::Image:
        return makeImagePeer(static_cast<ctl_Image&>(control), window);
    case ControlKind::Label:
        return makeLabelPeer(static_cast<ctl_Label&>(control), window);
    case ControlKind::Frame:
        return makeFramePeer(static_cast<ctl_Frame&>(control), window);
    case ControlKind::Title:
        return makeTitlePeer(static_cast<ctl_Title&>(control), window);
    case ControlKind::Header:
        return makeHeaderPeer(static_cast<ctl_Header&>(control), window);
    case ControlKind::CmdBar:
        return makeCmdBarPeer(static_cast<ctl_CmdBar&>(control), window);
    case ControlKind::StatusBar:
        return makeStatusBarPeer(static_cast<ctl_StatusBar&>(control), window);
    case ControlKind::Separator:
        return makeRulePeer(control, window);
    case ControlKind::Line:
        return makeLinePeer(static_cast<Line&>(control), window);
    case ControlKind::TermLabel:
        return makeTermLabelPeer(static_cast<ctl_TermLabel&>(control), window);
    case ControlKind::TermInput:
        return makeTermInputPeer(static_cast<clt_TermInput&>(control), window);
    case ControlKind::DrAtom:
        return makeDrAtomPeer(static_cast<ctl_DrAtom&>(control), window);
    case ControlKind::PictureBox:
        return makePicturePeer(static_cast<PictureBox&>(control), window);
    case ControlKind::OptionButton:
        return makeOptionButtonPeer(static_cast<OptionButton&>(control), window);
    case ControlKind::CheckBox:
        return makeCheckBoxPeer(static_cast<CheckBox&>(control), window);
    case ControlKind::ListBox:
        return makeListBoxPeer(static_cast<ListBox&>(control), window);
    case ControlKind::TabControl:
        return makeTabPeer(static_cast<TabControl&>(control), window);
    case ControlKind::RichTextBox:
        return makeRichTextPeer(static_cast<RichTextBox&>(control), window);
    case ControlKind::Executor:
        break;
    }
    return nullptr;
}

} // namespace quendal
