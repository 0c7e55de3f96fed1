"""The example model as data: its sheets, their lines from top to bottom, names and checks.

A timeline has eight fiscal years, columns C to J: three of actuals, five of forecast. In a formula {key} is the line
of that key in the same year, {key<} in the year before, {key*} over all years; money is in thousands of dollars.
"""

from dataclasses import dataclass
from typing import Any

YEARS = 8
ACTUALS = 3
FIRST_COLUMN = 3


@dataclass
class Line:
    """One line. actual and forecast: a formula for every year, a list with an entry a year, or None for empty."""

    key: str
    label: str
    unit: str = ""
    actual: Any = None
    forecast: Any = None
    level: int = 0  # outline level of the row
    bold: bool = False

    def entries(self):
        """What stands in each of the eight years: a number, a formula or None."""

        def spread(part, years):
            return list(part) if isinstance(part, list) else [part] * years

        return spread(self.actual, ACTUALS) + spread(self.forecast, YEARS - ACTUALS)


@dataclass
class Scalar:
    """One value in column C, with the workbook name it goes by."""

    name: str
    label: str
    unit: str
    value: Any


@dataclass
class Heading:
    """A line of text in bold."""

    label: str


@dataclass
class Sheet:
    """Lines start in row 4, the fiscal years; None is an empty row. The letters are the columns that fold away."""

    name: str
    subtitle: str
    lines: list
    grouped_columns: str = ""


def timeline():
    """The two lines that head every sheet but the one that defines them."""
    return [
        Line("", "Fiscal year", "", "={fy}", "={fy}", bold=True),
        Line("", "Period ending", "date", "={period_end}", "={period_end}"),
        None,
    ]


def same(formula):
    """One formula for all years."""
    return {"actual": formula, "forecast": formula}


INPUTS = Sheet(
    "Inputs",
    "Assumptions. Change values on this sheet only.",
    [
        Line("fy", "Fiscal year", "", '="FY"&YEAR({period_end})&"A"', '="FY"&YEAR({period_end})&"E"', bold=True),
        Line(
            "period_end", "Period ending", "date",
            ["=EDATE(LastActual,-24)", "=EDATE({period_end<},12)", "=EDATE({period_end<},12)"],
            "=EDATE({period_end<},12)",
        ),
        None,
        Heading("General"),
        Scalar("CompanyName", "Company", "text", "Calder Vale Instruments"),
        Scalar("Scenario", "Scenario running (1 base, 2 upside, 3 downside)", "switch", 1),
        Scalar("ScenarioName", "Scenario name", "text", "=INDEX(Lists!$A$2:$A$4,Scenario)"),
        Scalar("LastActual", "Last actual period end", "date", 46022),
        Scalar("DaysInYear", "Days in a year", "days", 365),
        Scalar("TaxRate", "Tax rate", "%", 0.25),
        Scalar("TaxDeferred", "Share of the year's tax paid in the next year", "%", 0.25),
        Scalar("MinimumCash", "Minimum cash balance", "$000", 2500),
        Scalar("PayoutRatio", "Dividends, share of net income", "%", 0.4),
        None,
        Heading("Revenue drivers"),
        Line("unit_growth", "Unit growth, running", "%", None,
             "=CHOOSE(Scenario,{unit_growth_base},{unit_growth_up},{unit_growth_down})"),
        Line("unit_growth_base", "Base", "%", None, [0.06, 0.055, 0.07, 0.05, 0.045], level=1),
        Line("unit_growth_up", "Upside", "%", None, [0.08, 0.085, 0.1, 0.075, 0.065], level=1),
        Line("unit_growth_down", "Downside", "%", None, [0.015, -0.01, 0.02, 0.025, 0.025], level=1),
        Line("price_growth", "Price growth, running", "%", None,
             "=CHOOSE(Scenario,{price_growth_base},{price_growth_up},{price_growth_down})"),
        Line("price_growth_base", "Base", "%", None, [0.02, 0.02, 0.0225, 0.0225, 0.0225], level=1),
        Line("price_growth_up", "Upside", "%", None, [0.03, 0.03, 0.03, 0.0275, 0.0275], level=1),
        Line("price_growth_down", "Downside", "%", None, [0.005, 0, 0.01, 0.015, 0.015], level=1),
        Line("attach_rate", "Service contracts sold per unit", "x", None, [0.31, 0.32, 0.33, 0.33, 0.34]),
        Line("churn", "Contracts lost, share of opening", "%", None, [0.085, 0.085, 0.08, 0.08, 0.08]),
        Line("service_price_growth", "Revenue per contract growth", "%", None, [0.025, 0.025, 0.025, 0.025, 0.025]),
        None,
        Heading("Cost drivers"),
        Line("materials_rate", "Materials, share of instrument revenue, running", "%", None,
             "=CHOOSE(Scenario,{materials_base},{materials_up},{materials_down})"),
        Line("materials_base", "Base", "%", None, [0.57, 0.571, 0.57, 0.568, 0.567], level=1),
        Line("materials_up", "Upside", "%", None, [0.562, 0.556, 0.55, 0.546, 0.544], level=1),
        Line("materials_down", "Downside", "%", None, [0.58, 0.584, 0.582, 0.58, 0.578], level=1),
        Line("service_cost_rate", "Delivery cost, share of service revenue", "%", None,
             [0.412, 0.415, 0.415, 0.413, 0.412]),
        Line("wage_growth", "Wage growth", "%", None, [0.038, 0.036, 0.035, 0.035, 0.035]),
        Line("inflation", "Cost inflation", "%", None, [0.025, 0.022, 0.02, 0.02, 0.02]),
        Line("marketing_rate", "Marketing, share of revenue", "%", None, [0.024, 0.024, 0.0235, 0.0235, 0.023]),
        Line("other_rate", "Travel and other, share of revenue", "%", None, [0.018, 0.018, 0.0175, 0.0175, 0.0175]),
        None,
        Heading("Working capital"),
        Line("dso", "Receivables, days of revenue", "days", "={receivables}/{revenue}*DaysInYear",
             [59, 58, 57, 57, 56]),
        Line("dio", "Inventories, days of instrument cost", "days",
             "={inventories}/{instrument_cost}*DaysInYear", [83, 82, 80, 80, 79]),
        Line("dpo", "Payables, days of instrument cost", "days",
             "={payables}/{instrument_cost}*DaysInYear", [54, 54, 55, 55, 55]),
        Line("prepaid_rate", "Prepaid expenses, share of revenue", "%", "={prepaid}/{revenue}", [0.012] * 5),
        Line("deferred_rate", "Deferred revenue, share of service revenue", "%",
             "={deferred_revenue}/{service_revenue}", [0.25] * 5),
        Line("accrued_rate", "Accrued expenses, share of operating expenses", "%", "={accrued}/{opex}", [0.08] * 5),
        None,
        Heading("Investment and funding"),
        Line("capex_rate", "Maintenance capex, share of revenue", "%", None, [0.045, 0.045, 0.044, 0.044, 0.043]),
        Line("expansion_capex", "Expansion capex", "$000", None, [0, 7400, 3600, 500, 500]),
        Line("depreciation_rate", "Depreciation, share of opening fixed assets and half of capex", "%", None,
             [0.105] * 5),
        Line("amortisation_plan", "Amortisation", "$000", None, [400] * 5),
        Line("term_draw_plan", "Term loan drawn", "$000", None, [0, 3500, 0, 0, 0]),
        Line("term_repay_plan", "Term loan repaid", "$000", None, [2000, 2000, 2600, 2600, 2600]),
        Scalar("TermRate", "Term loan interest, on opening balance", "%", 0.0575),
        Scalar("RevolverRate", "Revolver interest, on opening balance", "%", 0.0675),
        Scalar("CashRate", "Interest on opening cash", "%", 0.02),
        Scalar("RevolverLimit", "Revolver limit", "$000", 6000),
        None,
        Heading("Seasons, share of the year's revenue"),
        Scalar("Season1", "First quarter", "%", 0.22),
        Scalar("Season2", "Second quarter", "%", 0.25),
        Scalar("Season3", "Third quarter", "%", 0.24),
        Scalar("Season4", "Fourth quarter", "%", "=1-SUM(Season1,Season2,Season3)"),
    ],
)

REVENUE = Sheet(
    "Revenue",
    "Units and contracts build revenue from the bottom up",
    timeline() + [
        Heading("Instruments"),
        Line("units", "Units sold", "units", [4200, 4520, 4830], "={units<}*(1+{unit_growth})", level=1),
        Line("price", "Average price", "$000", [9.4, 9.55, 9.7], "={price<}*(1+{price_growth})", level=1),
        Line("instruments", "Instrument revenue", "$000", **same("={units}*{price}"), bold=True),
        None,
        Heading("Service"),
        Line("contracts_open", "Contracts, opening", "contracts", [None, "={contracts<}", "={contracts<}"],
             "={contracts<}", level=1),
        Line("contracts_new", "New contracts", "contracts",
             [None] + ["={contracts}-{contracts_open}+{contracts_lost}"] * 2, "={units}*{attach_rate}", level=1),
        Line("contracts_lost", "Contracts lost", "contracts", [None, 480, 560], "={contracts_open}*{churn}", level=1),
        Line("contracts", "Contracts, closing", "contracts", [6100, 6900, 7760],
             "={contracts_open}+{contracts_new}-{contracts_lost}", level=1),
        Line("contract_price", "Revenue per contract", "$000", [1.85, 1.9, 1.95],
             "={contract_price<}*(1+{service_price_growth})", level=1),
        Line("services", "Service revenue", "$000", **same("={contracts}*{contract_price}"), bold=True),
        None,
        Line("revenue_build", "Total revenue", "$000", **same("={instruments}+{services}"), bold=True),
        None,
        Heading("Mix and growth"),
        Line("", "Instruments, share of revenue", "%", **same("={instruments}/{revenue_build}")),
        Line("", "Service, share of revenue", "%", **same("={services}/{revenue_build}")),
        Line("", "Instrument revenue growth", "%", [None] + ["={instruments}/{instruments<}-1"] * 2,
             "={instruments}/{instruments<}-1"),
        Line("", "Service revenue growth", "%", [None] + ["={services}/{services<}-1"] * 2,
             "={services}/{services<}-1"),
    ],
    grouped_columns="CD",
)

OPEX = Sheet(
    "Opex & Headcount",
    "People by department, and what else it costs to run the company",
    timeline() + [
        Heading("Headcount, average of the year"),
        Line("heads_sales", "Sales and marketing", "heads", [62, 66, 70], [74, 79, 83, 87, 91], level=1),
        Line("heads_research", "Research and development", "heads", [48, 52, 55], [59, 64, 68, 71, 74], level=1),
        Line("heads_admin", "General and administrative", "heads", [30, 31, 33], [34, 36, 37, 38, 39], level=1),
        Line("heads", "Total headcount", "heads", **same("=SUM({heads_sales}:{heads_admin})"), bold=True),
        None,
        Heading("Cost per head, with social cost"),
        Line("pay_sales", "Sales and marketing", "$000", [86, 89, 92], "={pay_sales<}*(1+{wage_growth})", level=1),
        Line("pay_research", "Research and development", "$000", [97, 100, 104], "={pay_research<}*(1+{wage_growth})",
             level=1),
        Line("pay_admin", "General and administrative", "$000", [82, 85, 88], "={pay_admin<}*(1+{wage_growth})",
             level=1),
        None,
        Heading("People cost"),
        Line("people_sales", "Sales and marketing", "$000", **same("={heads_sales}*{pay_sales}"), level=1),
        Line("people_research", "Research and development", "$000", **same("={heads_research}*{pay_research}"),
             level=1),
        Line("people_admin", "General and administrative", "$000", **same("={heads_admin}*{pay_admin}"), level=1),
        Line("people", "Total people cost", "$000", **same("=SUM({people_sales}:{people_admin})"), bold=True),
        None,
        Heading("Other operating expenses"),
        Line("marketing", "Marketing programmes", "$000", [1250, 1360, 1480], "={revenue_build}*{marketing_rate}",
             level=1),
        Line("facilities", "Facilities", "$000", [1640, 1690, 1750], "={facilities<}*(1+{inflation})", level=1),
        Line("other", "Travel and other", "$000", [980, 1040, 1110], "={revenue_build}*{other_rate}", level=1),
        Line("non_people", "Total other expenses", "$000", **same("=SUM({marketing}:{other})"), bold=True),
        None,
        Line("opex_build", "Total operating expenses", "$000", **same("={people}+{non_people}"), bold=True),
        Line("", "Cost per head, all departments", "$000",
             **same("=SUMPRODUCT({heads_sales}:{heads_admin},{pay_sales}:{pay_admin})/{heads}")),
        Line("", "Revenue per head", "$000", **same("={revenue_build}/{heads}")),
    ],
    grouped_columns="CD",
)

INCOME = Sheet(
    "Income Statement",
    "Years ending 31 December, $000",
    timeline() + [
        Line("instrument_revenue", "Instruments", "$000", **same("={instruments}")),
        Line("service_revenue", "Service", "$000", **same("={services}")),
        Line("revenue", "Revenue", "$000", **same("=SUM({instrument_revenue}:{service_revenue})"), bold=True),
        None,
        Line("instrument_cost", "Cost of instruments", "$000", [22900, 24820, 26710],
             "={instrument_revenue}*{materials_rate}"),
        Line("service_cost", "Cost of service", "$000", [4740, 5440, 6200], "={service_revenue}*{service_cost_rate}"),
        Line("gross_profit", "Gross profit", "$000", **same("={revenue}-{instrument_cost}-{service_cost}"), bold=True),
        None,
        Line("is_people", "People cost", "$000", **same("={people}"), level=1),
        Line("is_other", "Other operating expenses", "$000", **same("={non_people}"), level=1),
        Line("opex", "Operating expenses", "$000", **same("=SUM({is_people}:{is_other})")),
        Line("ebitda", "EBITDA", "$000", **same("={gross_profit}-{opex}"), bold=True),
        None,
        Line("depreciation", "Depreciation", "$000", [2150, 2300, 2460],
             "=({fixed_assets<}+{capex}/2)*{depreciation_rate}", level=1),
        Line("amortisation", "Amortisation", "$000", [400, 400, 400], "=MIN({intangibles<},{amortisation_plan})",
             level=1),
        Line("ebit", "Operating profit", "$000", **same("={ebitda}-{depreciation}-{amortisation}"), bold=True),
        None,
        Line("interest_income", "Interest income", "$000", [60, 75, 90], "={cash<}*CashRate"),
        Line("interest_expense", "Interest expense", "$000", [1150, 1020, 905], "={interest_due}"),
        Line("pre_tax", "Profit before tax", "$000", **same("={ebit}+{interest_income}-{interest_expense}"), bold=True),
        Line("tax", "Income tax", "$000", [792, 1143, 1499], "=MAX(0,{pre_tax})*TaxRate"),
        Line("net_income", "Net income", "$000", **same("={pre_tax}-{tax}"), bold=True),
        None,
        Heading("Ratios"),
        Line("", "Revenue growth", "%", [None] + ["={revenue}/{revenue<}-1"] * 2, "={revenue}/{revenue<}-1"),
        Line("", "Gross margin", "%", **same("={gross_profit}/{revenue}")),
        Line("ebitda_margin", "EBITDA margin", "%", **same("={ebitda}/{revenue}")),
        Line("", "Net margin", "%", **same("={net_income}/{revenue}")),
        Line("", "Effective tax rate", "%", **same("={tax}/{pre_tax}")),
    ],
    grouped_columns="CD",
)

BALANCE = Sheet(
    "Balance Sheet",
    "As of 31 December, $000",
    timeline() + [
        Heading("Assets"),
        Line("cash", "Cash", "$000", [4300, 3079, 2984], "={cash_close}"),
        Line("receivables", "Trade receivables", "$000", [8350, 9250, 10190], "={revenue}*{dso}/DaysInYear", level=1),
        Line("inventories", "Inventories", "$000", [5270, 5710, 6150], "={instrument_cost}*{dio}/DaysInYear", level=1),
        Line("prepaid", "Prepaid expenses", "$000", [610, 675, 745], "={revenue}*{prepaid_rate}", level=1),
        Line("current_assets", "Current assets", "$000", **same("=SUM({cash}:{prepaid})"), bold=True),
        Line("fixed_assets", "Property, plant and equipment", "$000", [21400, 22000, 22690],
             "={fixed_assets<}+{capex}-{depreciation}", level=1),
        Line("intangibles", "Intangible assets", "$000", [4000, 3600, 3200], "={intangibles<}-{amortisation}", level=1),
        Line("assets", "Total assets", "$000", **same("={current_assets}+{fixed_assets}+{intangibles}"), bold=True),
        None,
        Heading("Liabilities"),
        Line("payables", "Trade payables", "$000", [3390, 3690, 3970], "={instrument_cost}*{dpo}/DaysInYear", level=1),
        Line("deferred_revenue", "Deferred revenue", "$000", [2820, 3280, 3780], "={service_revenue}*{deferred_rate}",
             level=1),
        Line("tax_payable", "Tax payable", "$000", [200, 285, 375], "={tax}*TaxDeferred", level=1),
        Line("accrued", "Accrued expenses", "$000", [1310, 1420, 1550], "={opex}*{accrued_rate}", level=1),
        Line("current_liabilities", "Current liabilities", "$000", **same("=SUM({payables}:{accrued})"), bold=True),
        Line("term_loan", "Term loan", "$000", [18000, 16000, 14000], "={term_close}", level=1),
        Line("revolver", "Revolver", "$000", [1500, 500, 0], "={revolver_close}", level=1),
        Line("liabilities", "Total liabilities", "$000", **same("={current_liabilities}+{term_loan}+{revolver}"),
             bold=True),
        None,
        Heading("Equity"),
        Line("share_capital", "Share capital", "$000", [5000, 5000, 5000], "={share_capital<}", level=1),
        Line("retained", "Retained earnings", "$000",
             [11710] + ["={retained<}+{net_income}-{dividends}"] * 2, "={retained<}+{net_income}-{dividends}", level=1),
        Line("equity", "Total equity", "$000", **same("={share_capital}+{retained}"), bold=True),
        None,
        Line("funding", "Total liabilities and equity", "$000", **same("={liabilities}+{equity}"), bold=True),
        None,
        Line("net_debt", "Net debt", "$000", **same("={term_loan}+{revolver}-{cash}")),
        Line("", "Net working capital", "$000",
             **same("={receivables}+{inventories}+{prepaid}-{payables}-{deferred_revenue}-{accrued}")),
        Line("", "Current ratio", "x", **same("={current_assets}/{current_liabilities}")),
        Line("", "Return on equity", "%", [None] + ["={net_income}/AVERAGE({equity<},{equity})"] * 2,
             "={net_income}/AVERAGE({equity<},{equity})"),
    ],
    grouped_columns="CD",
)


def flow(key, label, formula, unit="$000", level=1, bold=False):
    """A cash-flow line: the first year of actuals has no year before it to compare with."""
    return Line(key, label, unit, [None, formula, formula], formula, level=level, bold=bold)


CASH = Sheet(
    "Cash Flow",
    "Years ending 31 December, $000; indirect method",
    timeline() + [
        Heading("Operations"),
        flow("cf_income", "Net income", "={net_income}"),
        flow("", "Depreciation", "={depreciation}"),
        flow("cf_amortisation", "Amortisation", "={amortisation}"),
        flow("", "Change in trade receivables", "={receivables<}-{receivables}"),
        flow("", "Change in inventories", "={inventories<}-{inventories}"),
        flow("", "Change in prepaid expenses", "={prepaid<}-{prepaid}"),
        flow("", "Change in trade payables", "={payables}-{payables<}"),
        flow("", "Change in deferred revenue", "={deferred_revenue}-{deferred_revenue<}"),
        flow("", "Change in tax payable", "={tax_payable}-{tax_payable<}"),
        flow("cf_accrued", "Change in accrued expenses", "={accrued}-{accrued<}"),
        flow("operating_flow", "Cash flow from operations", "=SUM({cf_income}:{cf_accrued})", level=0, bold=True),
        None,
        Heading("Investment"),
        Line("capex", "Capital expenditure", "$000", [2700, 2900, 3150], "={revenue}*{capex_rate}+{expansion_capex}",
             level=1),
        flow("investing_flow", "Cash flow from investment", "=-{capex}", level=0, bold=True),
        None,
        Heading("Funding"),
        flow("", "Term loan drawn", "={term_draw}"),
        flow("", "Term loan repaid", "=-{term_repay}"),
        flow("", "Revolver drawn, repaid when negative", "={revolver_flow}"),
        Line("dividends", "Dividends declared and paid", "$000", [700, 1000, 1350],
             "=MAX(0,{net_income})*PayoutRatio", level=1),
        flow("funding_flow", "Cash flow from funding", "={term_draw}-{term_repay}+{revolver_flow}-{dividends}", level=0,
             bold=True),
        None,
        flow("net_flow", "Net change in cash", "={operating_flow}+{investing_flow}+{funding_flow}", level=0, bold=True),
        flow("cash_open", "Opening cash", "={cash<}", level=0),
        Line("cash_close", "Closing cash", "$000", ["={cash}"] + ["={cash_open}+{net_flow}"] * 2,
             "={cash_open}+{net_flow}",
             bold=True),
        None,
        flow("free_flow", "Free cash flow", "={operating_flow}+{investing_flow}", level=0),
        flow("", "Cash conversion, free cash flow over EBITDA", "={free_flow}/{ebitda}", "%", level=0),
    ],
    grouped_columns="CD",
)

DEBT = Sheet(
    "Debt",
    "Term loan and revolver, $000; interest runs on opening balances, so that nothing is circular",
    timeline() + [
        Heading("Cash before the revolver"),
        Line("pre_open", "Opening cash", "$000", None, "={cash_open}", level=1),
        Line("", "Cash flow from operations", "$000", None, "={operating_flow}", level=1),
        Line("", "Cash flow from investment", "$000", None, "={investing_flow}", level=1),
        Line("", "Term loan, drawn less repaid", "$000", None, "={term_draw}-{term_repay}", level=1),
        Line("pre_dividends", "Dividends", "$000", None, "=-{dividends}", level=1),
        Line("cash_before", "Cash before the revolver", "$000", None, "=SUM({pre_open}:{pre_dividends})", bold=True),
        Line("minimum", "Minimum cash", "$000", None, "=MinimumCash"),
        Line("headroom", "Surplus over minimum, shortfall when negative", "$000", None, "={cash_before}-{minimum}"),
        None,
        Heading("Term loan"),
        Line("term_open", "Opening", "$000", [None, "={term_close<}", "={term_close<}"], "={term_close<}", level=1),
        Line("term_draw", "Drawn", "$000", [None, 0, 0], "={term_draw_plan}", level=1),
        Line("term_repay", "Repaid", "$000", [None, 2000, 2000], "=MIN({term_repay_plan},{term_open}+{term_draw})",
             level=1),
        Line("term_close", "Closing", "$000", ["={term_loan}"] + ["={term_open}+{term_draw}-{term_repay}"] * 2,
             "={term_open}+{term_draw}-{term_repay}", bold=True),
        Line("term_interest", "Interest", "$000", None, "={term_open}*TermRate"),
        None,
        Heading("Revolver"),
        Line("revolver_open", "Opening", "$000", [None, "={revolver_close<}", "={revolver_close<}"],
             "={revolver_close<}",
             level=1),
        Line("revolver_flow", "Drawn, repaid when negative", "$000", [None, -1000, -500],
             "=MAX(-{headroom},-{revolver_open})", level=1),
        Line("revolver_close", "Closing", "$000", ["={revolver}"] + ["={revolver_open}+{revolver_flow}"] * 2,
             "={revolver_open}+{revolver_flow}", bold=True),
        Line("revolver_interest", "Interest", "$000", None, "={revolver_open}*RevolverRate"),
        None,
        Line("interest_due", "Total interest expense", "$000", None, "={term_interest}+{revolver_interest}", bold=True),
        None,
        Heading("Covenants"),
        Line("leverage", "Net debt over EBITDA", "x", **same("={net_debt}/{ebitda}")),
        Line("", "EBITDA over interest expense", "x", **same("={ebitda}/{interest_expense}")),
        Line("", "Debt service cover", "x",
             [None] + ["=({ebitda}-{tax}-{capex})/({interest_expense}+{term_repay})"] * 2,
             "=({ebitda}-{tax}-{capex})/({interest_expense}+{term_repay})"),
        Line("leverage_limit", "Leverage covenant, at most", "x", None, [3, 3, 3, 2.5, 2.5]),
    ],
    grouped_columns="CDE",
)


def check(key, label, test, actual=True):
    """A flag a year: 1 when the test does not hold."""
    return Line(key, label, "0/1", test if actual is True else actual, test)


CHECKS = Sheet(
    "Checks",
    "Every flag is 0 when the model holds together",
    timeline() + [
        Heading("Differences"),
        Line("balance_gap", "Total assets less liabilities and equity", "$000", **same("={assets}-{funding}"), level=1),
        Line("cash_gap", "Cash flow's closing cash less balance sheet", "$000", **same("={cash_close}-{cash}"),
             level=1),
        Line("debt_gap", "Debt schedule less balance sheet", "$000",
             **same("={term_close}+{revolver_close}-{term_loan}-{revolver}"), level=1),
        Line("revenue_gap", "Revenue build less income statement", "$000", **same("={revenue_build}-{revenue}"),
             level=1),
        Line("opex_gap", "Expense build less income statement", "$000", **same("={opex_build}-{opex}"), level=1),
        None,
        Heading("Flags"),
        check("flag_first", "Balance sheet balances", "=IF(ABS({balance_gap})>Tolerance,1,0)"),
        check("", "Cash agrees", "=IF(ABS({cash_gap})>Tolerance,1,0)"),
        check("", "Debt agrees", "=IF(ABS({debt_gap})>Tolerance,1,0)"),
        check("", "Revenue agrees", "=IF(ABS({revenue_gap})>Tolerance,1,0)"),
        check("", "Expenses agree", "=IF(ABS({opex_gap})>Tolerance,1,0)"),
        check("", "Cash at or above its minimum", "=IF({cash}<MinimumCash-Tolerance,1,0)"),
        check("", "Revolver within its limit", "=IF({revolver}>RevolverLimit+Tolerance,1,0)"),
        check("flag_last", "Leverage within its covenant", "=IF({leverage}>{leverage_limit},1,0)", actual=[0, 0, 0]),
        Line("flags", "Flags raised", "count", **same("=SUM({flag_first}:{flag_last})"), bold=True),
        None,
        Scalar("Tolerance", "Tolerance", "$000", 0.001),
        Scalar("ChecksFailed", "Flags raised over all years", "count", "=SUM({flags*})"),
        Scalar("ModelStatus", "Model status", "text", '=IF(ChecksFailed=0,"OK","CHECK")'),
    ],
)

SHEETS = [INPUTS, REVENUE, OPEX, INCOME, BALANCE, CASH, DEBT, CHECKS]

# Lines that go by a name over all years.
NAMED_LINES = {
    "FiscalYears": "fy",
    "Revenue": "revenue",
    "GrossProfit": "gross_profit",
    "EBITDA": "ebitda",
    "NetIncome": "net_income",
    "FreeCashFlow": "free_flow",
    "NetDebt": "net_debt",
}
