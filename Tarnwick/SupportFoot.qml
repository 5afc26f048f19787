pragma ComponentBehavior: Bound

import QtQuick
import OndelAppSupport.views
import TarnwickKit.views

/// The note that asks for support, at the sidebar's foot.
SupportBanner {
    highContrast: Appearance.contrast
    width: parent?.width ?? 0
}
