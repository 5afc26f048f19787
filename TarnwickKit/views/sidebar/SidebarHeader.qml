pragma ComponentBehavior: Bound

import TarnwickKit.views

HeadingText {
    leftPadding: ViewMetrics.sidebarInset
    rightPadding: ViewMetrics.sidebarInset
    bottomPadding: 11
}
