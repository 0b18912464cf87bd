#pragma once
// The look of each of the seven screens in Qt: style and picture.

#include "app/qt/form_view.h"

namespace tourvane {

FormSkin title_skin();      ///< Form1
FormSkin office_skin();     ///< main
FormSkin memo_skin();       ///< messageForm
FormSkin gig_skin();        ///< gig
FormSkin newspaper_skin();  ///< thenewspaper
FormSkin files_skin();      ///< savefrm
FormSkin chart_skin();      ///< Chart

}  // namespace tourvane
