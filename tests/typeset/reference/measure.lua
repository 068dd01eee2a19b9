-- Called by reference.tex.
local scale = 2 / 65536
local function number(value) return (string.format("%.3f", value):gsub("^%-0.000$", "0.000")) end
local glyphs, rules

local walkHorizontal, walkVertical

local function walkBox(box, x, y)
  if box.id == node.id("hlist") then walkHorizontal(box, x, y) else walkVertical(box, x, y) end
end

function walkHorizontal(box, x, y)
  for item in node.traverse(box.head) do
    local kind = node.type(item.id)
    if kind == "glyph" then
      glyphs[#glyphs + 1] = "[" .. number((x + item.xoffset) * scale) .. "," .. number((y + item.yoffset) * scale) .. "]"
      x = x + item.width
    elseif kind == "kern" then x = x + item.kern
    elseif kind == "glue" then x = x + node.effective_glue(item, box)
    elseif kind == "hlist" or kind == "vlist" then
      walkBox(item, x, y - item.shift)
      x = x + item.width
    elseif kind == "rule" then
      local depth = item.depth == -1073741824 and box.depth or item.depth
      local height = item.height == -1073741824 and box.height or item.height
      rules[#rules + 1] = "[" .. number(x * scale) .. "," .. number((y - depth) * scale) .. ","
        .. number(item.width * scale) .. "," .. number((height + depth) * scale) .. "]"
      x = x + item.width
    elseif kind == "math" then x = x + item.surround
    elseif kind == "disc" or kind == "whatsit" or kind == "penalty" then
    else texio.write_nl("unknown node " .. kind) end
  end
end

function walkVertical(box, x, y)
  y = y + box.height
  for item in node.traverse(box.head) do
    local kind = node.type(item.id)
    if kind == "kern" then y = y - item.kern
    elseif kind == "glue" then y = y - node.effective_glue(item, box)
    elseif kind == "hlist" or kind == "vlist" then
      y = y - item.height
      walkBox(item, x + item.shift, y)
      y = y - item.depth
    elseif kind == "rule" then
      local width = item.width == -1073741824 and box.width or item.width
      y = y - item.height - item.depth
      rules[#rules + 1] = "[" .. number(x * scale) .. "," .. number(y * scale) .. ","
        .. number(width * scale) .. "," .. number((item.height + item.depth) * scale) .. "]"
    else texio.write_nl("unknown vertical node " .. kind) end
  end
end

local out = io.open("reference.jsonl", "w")
for line in io.lines("lines.txt") do
  tex.runtoks(function() tex.sprint("\\setbox0\\hbox{$\\displaystyle " .. line .. "$}") end)
  local box = tex.box[0]
  glyphs, rules = {}, {}
  walkHorizontal(box, 0, 0)
  local quoted = line:gsub("\\", "\\\\"):gsub('"', '\\"')
  out:write('{"latex":"' .. quoted .. '","width":' .. number(box.width * scale) .. ',"height":' .. number(box.height * scale)
    .. ',"depth":' .. number(box.depth * scale) .. ',"glyphs":[' .. table.concat(glyphs, ",") .. '],"rules":['
    .. table.concat(rules, ",") .. ']}\n')
end
out:close()
