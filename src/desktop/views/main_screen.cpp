#include "desktop/views/main_screen.h"

#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {

QWidget* MainScreenView(parts::MainButtons& buttons, QWidget* content) {
  return Padded(Column({Row({
                            WithIcon("company", Widget(buttons[parts::kCompanyData])),
                            WithIcon("people", Widget(buttons[parts::kEmployeeData])),
                            WithIcon("advisor", Widget(buttons[parts::kInformationAdvisor])),
                            WithIcon("tools", Widget(buttons[parts::kToolsAndProgramInformation])),
                            Spring(),
                            WithIcon("exit", Widget(buttons[parts::kExitProgram])),
                        }),
                        Grow(content)},
                       kSpace),
                kSpace);
}

}  // namespace tarnwell::desktop
