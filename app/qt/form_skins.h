#pragma once
// The look of each of the seven screens: title, style, picture, accessible names and keys.

#include "app/qt/form_view.h"

namespace tourvane {

FormSkin title_skin();      ///< Form1
FormSkin office_skin();     ///< main
FormSkin memo_skin();       ///< messageForm
FormSkin gig_skin();        ///< gig
FormSkin newspaper_skin();  ///< thenewspaper
FormSkin files_skin();      ///< savefrm
FormSkin chart_skin();      ///< Chart

/// The office's hot-spots with their keys, top to bottom (the keys D, G and F1 stay free).
const std::vector<std::pair<std::string, QKeySequence>>& office_keys();

}  // namespace tourvane
