#include "samplehost/app/labeldesign.h"

namespace SampleHost {

LabelDesign::~LabelDesign() = default;

} // namespace SampleHost
