#include "typeset/style.h"

namespace tavi::typeset {

ScriptShape Style::shape() const {
  switch (level) {
    case StyleLevel::display:
    case StyleLevel::text:
      return ScriptShape::plain;
    case StyleLevel::script:
      return ScriptShape::script;
    case StyleLevel::scriptscript:
      break;
  }
  return ScriptShape::scriptscript;
}

Style Style::superscript() const {
  return {isScript() ? StyleLevel::scriptscript : StyleLevel::script, isCramped};
}

Style Style::numerator() const {
  return isDisplay() ? Style{StyleLevel::text, isCramped} : superscript();
}

}  // namespace tavi::typeset
