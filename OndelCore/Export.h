#pragma once

/* The libraries are compiled with hidden symbols: other programs see what is marked here, and nothing else.
 */

/** Part of what other programs may use. Its headers are installed. */
#define ONDEL_PUBLIC __attribute__((visibility("default")))
/** Used by this project's own libraries from one another. Not installed, and it may change with every
 * release. */
#define ONDEL_KIT __attribute__((visibility("default")))
