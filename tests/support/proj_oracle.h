// PROJ as an independent numerical oracle: one operation created from an
// explicit parameter string, radians in and metres out.
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

    // lon, lat in radians -> x, y in metres.
    void forward(double lon, double lat, double &x, double &y) const {
        PJ_COORD c = proj_coord(lon, lat, 0, 0);
        c = proj_trans(pj_, PJ_FWD, c);
        x = c.xy.x;
        y = c.xy.y;
    }
    // x, y in metres -> lon, lat in radians.
    void inverse(double x, double y, double &lon, double &lat) const {
        PJ_COORD c = proj_coord(x, y, 0, 0);
        c = proj_trans(pj_, PJ_INV, c);
        lon = c.lp.lam;
        lat = c.lp.phi;
    }

  private:
    PJ_CONTEXT *context_;
    PJ *pj_;
};

}  // namespace veltra::test
#endif
