#ifndef ZV_CONFIGURATION_PAGE_PARTS_H
#define ZV_CONFIGURATION_PAGE_PARTS_H

/// What every configuration page has in common.
namespace zvConfigurationPageParts {

constexpr char style[] = R"(
:root{--ink:#1d2530;--soft:#5d6877;--line:#e4e8ed;--tint:#f5f7f9;--promote:#2563a8;--demote:#a04a1c}
body{max-width:1120px;margin:0 auto;padding:28px 32px 64px;background:#fff;color:var(--ink);
font:14px/1.5 system-ui,-apple-system,"Segoe UI",Roboto,"Helvetica Neue",Arial,sans-serif}
h1{font-size:22px;font-weight:600;margin:0 0 8px}
h2{font-size:17px;font-weight:600;margin:36px 0 10px;scroll-margin-top:72px}
h3{font-size:15px;font-weight:600;margin:24px 0 6px}
.bar{position:sticky;top:0;z-index:1;display:flex;gap:20px;align-items:center;padding:12px 0;background:#fff;
border-bottom:1px solid var(--line)}
.bar input{flex:1;font:inherit;padding:8px 12px;border:1px solid #c5ccd6;border-radius:8px;color:inherit}
.bar input:focus{outline:2px solid var(--promote);outline-offset:-1px}
.bar a{color:var(--promote);text-decoration:none}
.bar output{color:var(--soft);min-width:8em;text-align:right;font-variant-numeric:tabular-nums}
.count,.standard{color:var(--soft);font-weight:400;font-size:13px;margin-left:6px}
table{width:100%;border-collapse:collapse;overflow-wrap:anywhere}
th,td{text-align:left;vertical-align:top;padding:5px 12px;border-bottom:1px solid var(--line)}
thead th{color:var(--soft);font-weight:500;font-size:12.5px}
.group th{background:var(--tint);font-weight:400;padding:8px 12px}
.group b{font-weight:600}
tbody tr:not(.group):hover{background:#fafbfc}
.rule td{color:var(--soft)}
code{font:13px ui-monospace,SFMono-Regular,Menlo,Consolas,monospace;color:var(--ink)}
.arrow,.no{color:#8a94a3}
.badge{font-size:11.5px;padding:1px 8px;margin-left:6px;border-radius:9px;background:#e7eef7;color:var(--promote)}
.promote{color:var(--promote)}.demote{color:var(--demote)}
figure{margin:0 0 10px;padding:18px;border:1px solid var(--line);border-radius:8px;overflow-x:auto}
figure svg{display:block;margin:0 auto}
figcaption{margin-top:12px;text-align:center;color:var(--soft);font-size:12.5px}
[hidden]{display:none}
@media print{.bar{display:none}}
)";

constexpr char searchBar[] = R"(<div class="bar">
<input id="search" type="search" placeholder="Search types, attributes, extensions, views, states"
aria-label="Search" autocomplete="off" autofocus>
<a href="#objects">Objects</a><a href="#files">File types</a><a href="#views">Views</a>
<a href="#lifecycles">Lifecycles</a><output id="found" for="search"></output></div>
)";

constexpr char legend[] = R"(<figcaption><span class="promote">&#9472;&#9472;&#9654;</span> promote &emsp;
<span class="demote">&#9476;&#9476;&#9654;</span> demote</figcaption>
)";

// Every word that is searched for has to be in a row or in the heading of its group.
constexpr char script[] = R"(
const field = document.getElementById('search');
const groups = [...document.querySelectorAll('[data-group]')].map(element => {
  const head = element.querySelector('[data-head]').textContent;
  const rows = [...element.querySelectorAll('[data-row]')].map(row =>
    ({row, text: (head + ' ' + [...row.cells].map(cell => cell.textContent).join(' ')).toLowerCase()}));
  return {element, rows, text: head.toLowerCase()};
});
const sections = [...document.querySelectorAll('section')];
const total = groups.reduce((sum, group) => sum + group.rows.length, 0);
function search() {
  const words = field.value.toLowerCase().split(/\s+/).filter(Boolean);
  const matches = text => words.every(word => text.includes(word));
  let found = 0;
  for (const group of groups) {
    let any = matches(group.text);
    for (const {row, text} of group.rows) {
      row.hidden = !matches(text);
      any = any || !row.hidden;
      found += row.hidden ? 0 : 1;
    }
    group.element.hidden = !any;
  }
  for (const section of sections) {
    section.hidden = !section.querySelector('[data-group]:not([hidden])');
  }
  document.getElementById('found').value = (words.length ? found + ' of ' : '') + total + ' rows';
}
field.addEventListener('input', search);
field.value = new URLSearchParams(location.hash.slice(1)).get('search') || '';
search();
)";

}  // namespace zvConfigurationPageParts

#endif
