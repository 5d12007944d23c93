// The two configurable directories: the data home (grid files) and the
// object-edit home (catalogue override files).  Each is the result of the
// callback installed for it, else the value of its environment variable.
#pragma once

namespace veltra {

// The directory, or nullptr when there is none.  An installed callback
// decides alone (its NULL means no directory); an empty string counts as
// no directory.  Looked up afresh on every call.
const char *data_home();
const char *objedit_home();

}  // namespace veltra
