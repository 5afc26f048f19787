pragma ComponentBehavior: Bound

import TarnwickKit.views

/// The facts of the target's file system.
InfoList {
    required property TargetFacts target

    items: target.capabilities
}
