pragma ComponentBehavior: Bound

import TarnwickKit.views

/// A sentence under a button that goes by itself: what has just happened.
HoverTip {
    spoken: true
    delay: 0
    timeout: 4000
}
