#pragma once

namespace tavi::tour {

/// Puts remote values where a fetch would have left them: applications of the family, videos, an
/// advertisement. To be called before the launch.
void storeSampleRecords();

}  // namespace tavi::tour
