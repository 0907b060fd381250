// Makers of the peers, one for each kind of control.
#pragma once

#include "desktop/windows/widget_peer.h"

namespace quendal {

class CheckBox;
class Line;
class ListBox;
class OptionButton;
class PictureBox;
class RichTextBox;
class TabControl;
class clt_TermInput;
class ctl_Button;
class ctl_CmdBar;
class ctl_DrAtom;
class ctl_Frame;
class ctl_Header;
class ctl_Image;
class ctl_Label;
class ctl_Pannel;
class ctl_StatusBar;
class ctl_TermLabel;
class ctl_Title;

using PeerPtr = std::unique_ptr<WidgetPeer>;

PeerPtr makeButtonPeer(ctl_Button& button, FormWindow& window);
PeerPtr makeCmdBarPeer(ctl_CmdBar& bar, FormWindow& window);
PeerPtr makeOptionButtonPeer(OptionButton& option, FormWindow& window);
PeerPtr makeCheckBoxPeer(CheckBox& box, FormWindow& window);
PeerPtr makeListBoxPeer(ListBox& list, FormWindow& window);
PeerPtr makeTermInputPeer(clt_TermInput& input, FormWindow& window);
PeerPtr makeRichTextPeer(RichTextBox& box, FormWindow& window);
PeerPtr makeTabPeer(TabControl& tabs, FormWindow& window);
PeerPtr makeLabelPeer(ctl_Label& label, FormWindow& window);
PeerPtr makeTermLabelPeer(ctl_TermLabel& label, FormWindow& window);
PeerPtr makeImagePeer(ctl_Image& image, FormWindow& window);
PeerPtr makePanelPeer(ctl_Pannel& panel, FormWindow& window);
PeerPtr makeFramePeer(ctl_Frame& frame, FormWindow& window);
PeerPtr makeTitlePeer(ctl_Title& title, FormWindow& window);
PeerPtr makeHeaderPeer(ctl_Header& header, FormWindow& window);
PeerPtr makeStatusBarPeer(ctl_StatusBar& bar, FormWindow& window);
PeerPtr makeRulePeer(Control& rule, FormWindow& window);
PeerPtr makeLinePeer(Line& line, FormWindow& window);
PeerPtr makeDrAtomPeer(ctl_DrAtom& atom, FormWindow& window);
PeerPtr makePicturePeer(PictureBox& picture, FormWindow& window);

} // namespace quendal
