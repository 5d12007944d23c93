// Methods from catalogue codes: the code names a method, the name's row of
// the method table gives its routines.
#include "transforms/method_table.h"

extern "C" KA_API ka_method *ka_factory_method(int code) {
    return veltra::table_method(veltra::method_code_name(code));
}
