pragma ComponentBehavior: Bound

import TarnwickKit.views

/// A sentence under a button about the result of its action. It disappears by itself.
HoverTip {
    spoken: true
    delay: 0
    timeout: 4000
}
