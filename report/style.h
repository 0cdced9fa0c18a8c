#pragma once

/// How a page looks: on screens of every width, in the dark, and on paper. The colours of fates and
/// of marks are those that people with any kind of colour blindness tell apart; fates have patterns
/// as well, and marks are thicker than all else.
inline constexpr const char* kStyle = R"(:root{color-scheme:light dark;
--ink:#1b1f24;--soft:#59636e;--faint:#c5ccd3;--line:#e1e5ea;--paper:#fff;--box:#f6f8fa;
--link:#0b5394;--bad:#a63a00;--good:#00664b;
--converted:#009e73;--changed:#e69f00;--dropped:#d55e00;--refused:#8a4a73;--unseen:#9aa3ad;
--stripe:rgba(255,255,255,.55)}
@media (prefers-color-scheme:dark){:root{
--ink:#e4e8ec;--soft:#9fa9b3;--faint:#56606a;--line:#30363d;--paper:#14171b;--box:#1c2127;
--link:#7fb7ee;--bad:#ff9a5c;--good:#4fd1a5;
--converted:#00a97b;--changed:#e6a817;--dropped:#e56b12;--refused:#b878a0;--unseen:#77818b;
--stripe:rgba(0,0,0,.45)}}
*{box-sizing:border-box}
html{-webkit-text-size-adjust:100%}
body{margin:0;background:var(--paper);color:var(--ink);
font:16px/1.55 system-ui,-apple-system,"Segoe UI",Roboto,"Helvetica Neue",Arial,sans-serif}
main{max-width:66rem;margin:0 auto;padding:2.5rem 1.25rem 5rem}
h1,h2,h3,h4{line-height:1.25;font-weight:600;overflow-wrap:anywhere}
h1{font-size:1.9rem;margin:.2rem 0 1rem}
h2{font-size:1.7rem;margin:.2rem 0 1rem}
h3{font-size:1.25rem;margin:3.2rem 0 .9rem;padding-bottom:.35rem;border-bottom:1px solid var(--line)}
h4{font-size:1rem;margin:0 0 .25rem}
p{margin:0 0 .8rem;max-width:46rem}
a{color:var(--link)}
ul{margin:0;padding:0;list-style:none}
code{font:.8rem/1.4 ui-monospace,SFMono-Regular,Menlo,Consolas,"Liberation Mono",monospace;
color:var(--soft);overflow-wrap:anywhere}
bdi{overflow-wrap:anywhere}
.n{font-variant-numeric:tabular-nums}
.eyebrow,.meta,.note,.where{color:var(--soft)}
.eyebrow,.meta,.note,.where{font-size:.875rem}
.eyebrow{margin-bottom:.4rem}
.lead{font-size:1.08rem}
.error{padding:.7rem .9rem;border-left:4px solid var(--bad);background:var(--box);
overflow-wrap:anywhere}
.badge{display:inline-block;font-size:.85rem;font-weight:600;line-height:1.3;padding:.15rem .55rem;
border:1.5px solid currentColor;border-radius:1rem;vertical-align:.15em;white-space:nowrap}
.badge.whole{color:var(--good)}
.badge.losses,.badge.failed{color:var(--bad)}
.badge.stopped{color:var(--soft)}
.badge.failed{border-style:double;border-width:3px}
.wide+section.file,section.file+section.file{margin-top:5rem;padding-top:2.5rem;
border-top:3px solid var(--ink)}
.bar{display:flex;gap:1px;height:.8rem;margin:1.1rem 0 .7rem;border-radius:2px;overflow:hidden;
background:var(--line)}
.bar i{flex:1 1 0;min-width:4px}
.bar i,.key i{print-color-adjust:exact;-webkit-print-color-adjust:exact}
.key{display:flex;flex-wrap:wrap;gap:.25rem 1.5rem;margin-bottom:1.2rem}
.key i{display:inline-block;width:1.1rem;height:.8rem;border-radius:2px;vertical-align:-.05em}
.converted{background:var(--converted)}
.changed{background:repeating-linear-gradient(90deg,var(--changed) 0 4px,var(--stripe) 4px 6px),
var(--changed)}
.dropped{background:repeating-linear-gradient(135deg,var(--dropped) 0 4px,var(--stripe) 4px 6px),
var(--dropped)}
.refused{background:radial-gradient(circle at 2px 2px,var(--stripe) 1.2px,transparent 1.3px) 0 0/5px
5px,var(--refused)}
.unseen{background:repeating-linear-gradient(0deg,var(--unseen) 0 2px,var(--stripe) 2px 4px),
var(--unseen)}
nav ul{display:flex;flex-wrap:wrap;gap:.3rem 1.3rem;margin:1.6rem 0 0;padding:.6rem 0;
border-top:1px solid var(--line);border-bottom:1px solid var(--line)}
.reason{margin:0 0 2.2rem;padding-left:1rem;border-left:3px solid var(--faint);break-inside:avoid-page}
.reason .advice{margin-bottom:.3rem}
.reason .meta{margin-bottom:.7rem}
.reason .meta code{margin-left:.6rem}
.reason .table{margin:.9rem 0 .3rem}
.table bdi,.tables bdi{font-weight:600;font-size:.92rem}
.tables li{padding:.35rem 0;border-top:1px solid var(--line)}
.tables .message{display:block;max-width:46rem;font-size:.92rem;color:var(--soft)}
.rows{columns:15rem;column-gap:2rem;font-size:.92rem}
.rows li{break-inside:avoid;padding:.08rem 0}
.rows .where{white-space:nowrap}
.messages li{padding:.45rem 0;border-top:1px solid var(--line);max-width:52rem}
.messages code{display:block}
details{margin:.5rem 0 1rem}
summary{cursor:pointer;color:var(--link);font-size:.92rem;padding:.25rem 0}
.wide{overflow-x:auto;margin:0 -1.25rem;padding:0 1.25rem}
table{border-collapse:collapse;width:100%;font-size:.9rem}
th,td{padding:.45rem .6rem;text-align:left;vertical-align:top;border-bottom:1px solid var(--line)}
thead th{font-weight:600;color:var(--soft);vertical-align:bottom;white-space:nowrap}
th[scope=row]{font-weight:400;min-width:15rem}
th:first-child{padding-left:0}
td:last-child,th:last-child{padding-right:0}
.num{text-align:right}
.zero{color:var(--faint)}
.lead .zero,.key .zero{color:inherit}
th .badge{display:block;width:fit-content;font-size:.78rem;margin-top:.3rem}
table .bar{height:.4rem;margin:.35rem 0 0}
.verdicts{display:flex;flex-wrap:wrap;gap:.5rem 1.5rem;margin-bottom:1.6rem}
.views{display:grid;grid-template-columns:repeat(auto-fit,minmax(min(100%,27rem),1fr));gap:1.6rem}
figure{margin:0;break-inside:avoid}
figure svg{display:block;width:100%;height:auto;max-height:32rem;background:var(--box);
border:1px solid var(--line);border-radius:4px;print-color-adjust:exact}
figcaption{margin-top:.4rem;font-size:.875rem;color:var(--soft)}
figcaption b{color:var(--ink);margin-right:.4rem}
.legend{display:flex;flex-wrap:wrap;gap:.3rem 1.5rem;margin-bottom:.8rem;font-size:.92rem}
.legend svg{width:2.25rem;height:1.25rem;vertical-align:-.3em}
svg path,svg circle{vector-effect:non-scaling-stroke;stroke-linecap:round;stroke-linejoin:round;
fill:none}
svg .frame{stroke:var(--ink);stroke-width:1.4px}
svg .area{fill:#56b4e9;fill-opacity:.22;stroke:#2b7fb3;stroke-width:.8px}
svg .solid{fill:#b5946a;fill-opacity:.2;stroke:#94713f;stroke-width:.8px}
svg .link{stroke:#009e73;stroke-width:2px;stroke-dasharray:5 3}
svg .rigid{stroke:#a678b4;stroke-width:1.2px;stroke-dasharray:1 3.5}
svg .joint{stroke:var(--ink);stroke-width:4px}
.dense .frame{stroke-width:.7px}
.dense .area,.dense .solid{stroke-width:.5px}
svg .support{fill:var(--paper);stroke:var(--soft);stroke-width:1.2px}
svg .mark{stroke:#d55e00;stroke-width:3px;pointer-events:all}
svg .face{fill:#d55e00;fill-opacity:.3;stroke-width:2.5px}
svg circle.mark{stroke-width:2px}
.numbers text{font-weight:600;fill:var(--bad);stroke:var(--box);stroke-width:4px;
stroke-linejoin:round;paint-order:stroke}
.marks{margin-top:1.2rem;font-size:.92rem;max-width:52rem}
.marks li{padding:.15rem 0 .15rem 2rem;break-inside:avoid;overflow-wrap:anywhere}
.marks b{float:left;margin-left:-2rem;color:var(--bad)}
.marks+.note{margin-top:.5rem}
@media (min-width:60rem){figure:only-child .numbers text{font-size:.7em}}
@media (max-width:40rem){main{padding-top:1.5rem}h1,h2{font-size:1.4rem}h3{margin-top:2.4rem}
.badge{vertical-align:.05em}th[scope=row]{min-width:10rem}th,td{padding:.4rem}
.rows{columns:9rem;column-gap:1rem}svg .frame{stroke-width:.9px}
svg .mark{stroke-width:2px}svg circle.mark{stroke-width:1.5px}.numbers text{font-size:1.5em}}
@media print{:root{--paper:#fff;--ink:#000;--soft:#444;--faint:#999;--line:#bbb;--box:#fff;
--stripe:rgba(255,255,255,.55);--link:#000}
body{font-size:10pt}main{max-width:none;padding:0}nav{display:none}
h3{break-after:avoid}.wide{overflow:visible}tr{break-inside:avoid}
.views{grid-template-columns:1fr 1fr}figure svg{max-height:9cm}.numbers text{font-size:1.3em}
section.file+section.file,.wide+section.file{break-before:page;border-top:0;margin-top:0}
a{text-decoration:none}}
)";
