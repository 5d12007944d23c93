// PROJ as an independent numerical oracle: one operation created from an
// explicit parameter string; radians and metres.
#pragma once

#if VELTRA_HAVE_PROJ
#include <proj.h>

#include <string>

namespace veltra::test {

class ProjOracle {
  public:
    explicit ProjOracle(const std::string &definition)
        : context_(proj_context_create()),
          pj_(proj_create(context_, definition.c_str())) {}
    ~ProjOracle() {
        proj_destroy(pj_);
        proj_context_destroy(context_);
    }
    ProjOracle(const ProjOracle &) = delete;
    ProjOracle &operator=(const ProjOracle &) = delete;

    bool valid() const { return pj_ != nullptr; }

    // (lon, lat) -> (x, y) forward; (x, y) -> (lon, lat) inverse.
    void run(PJ_DIRECTION direction, double a, double b, double &u,
             double &v) const {
        const PJ_COORD c = proj_trans(pj_, direction, proj_coord(a, b, 0, 0));
        u = c.v[0];
        v = c.v[1];
    }

  private:
    PJ_CONTEXT *context_;
    PJ *pj_;
};

}  // namespace veltra::test
#endif
