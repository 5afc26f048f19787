pragma ComponentBehavior: Bound

import TarnwickKit.views

/// What the target's file system is.
InfoList {
    required property TargetFacts target

    items: target.capabilities
}
