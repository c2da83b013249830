#include "desktop/views/main_screen.h"

#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {

QWidget* MainScreenView(forms::MainButtons& buttons, QWidget* content) {
  return Padded(Column({Row({
                            WithIcon("company", Widget(buttons[forms::kCompanyData])),
                            WithIcon("people", Widget(buttons[forms::kEmployeeData])),
                            WithIcon("advisor", Widget(buttons[forms::kInformationAdvisor])),
                            WithIcon("tools", Widget(buttons[forms::kToolsAndProgramInformation])),
                            Spring(),
                            WithIcon("exit", Widget(buttons[forms::kExitProgram])),
                        }),
                        Grow(content)},
                       kWideSpace),
                kWideSpace);
}

}  // namespace tarnwell::desktop
