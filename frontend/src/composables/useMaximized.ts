import { onBeforeUnmount, onMounted, ref, type Ref } from 'vue'

// Rounding of scaled screens may cost a pixel.
const TOLERANCE_PX = 1

function fillsScreen(): boolean {
  return (
    window.innerWidth >= window.screen.availWidth - TOLERANCE_PX &&
    window.innerHeight >= window.screen.availHeight - TOLERANCE_PX
  )
}

// Whether the window is maximised. The client has a shortcut for it too and does not tell, so the page goes by its
// own size.
export function useMaximized(): Readonly<Ref<boolean>> {
  const maximized = ref(fillsScreen())
  const update = () => {
    maximized.value = fillsScreen()
  }
  onMounted(() => {
    window.addEventListener('resize', update)
  })
  onBeforeUnmount(() => {
    window.removeEventListener('resize', update)
  })
  return maximized
}
